#include "support/PreviewCopies.h"

#include "support/Paths.h"

#include <QFile>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class PreviewCopies : public testing::Test
{
protected:
    QString Path(const QString &name) const { return m_folder.filePath(name); }
    void Put(const QString &name, const QByteArray &content) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray Content(const QString &name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    const QTemporaryDir m_folder;
};

} // namespace

TEST_F(PreviewCopies, AFreeNameIsClaimedWrittenAndDropped)
{
    const QString path = ClaimPreviewCopy(Path(u"page_.html"_s));
    EXPECT_EQ(path, Path(u"page_.html"_s));
    EXPECT_TRUE(WritePreviewCopy(path, "one, longer"));
    EXPECT_TRUE(WritePreviewCopy(path, "two"));
    EXPECT_EQ(Content(u"page_.html"_s), "two");
    EXPECT_EQ(ClaimPreviewCopy(Path(u"page_.html"_s)), path);
    DropPreviewCopy(path);
    EXPECT_EQ(Content(u"page_.html"_s), "missing");
    EXPECT_FALSE(WritePreviewCopy(path, "three"));
}

TEST_F(PreviewCopies, APageOfTheAuthorIsLeftAlone)
{
    Put(u"page_.html"_s, "author");
    Put(u"page__.html"_s, "author");
    const QString path = ClaimPreviewCopy(Path(u"page_.html"_s));
    EXPECT_EQ(path, Path(u"page___.html"_s));
    EXPECT_FALSE(WritePreviewCopy(Path(u"page_.html"_s), "preview"));
    DropPreviewCopy(Path(u"page__.html"_s));
    EXPECT_EQ(Content(u"page_.html"_s), "author");
    EXPECT_EQ(Content(u"page__.html"_s), "author");
    DropPreviewCopy(path);
}

TEST_F(PreviewCopies, ACopyThatTheAuthorTookOverIsLeftAlone)
{
    const QString path = ClaimPreviewCopy(Path(u"page_.html"_s));
    ASSERT_TRUE(WritePreviewCopy(path, "preview"));
    Put(u"page_.html"_s, "saved by another program");
    EXPECT_FALSE(WritePreviewCopy(path, "preview"));
    EXPECT_EQ(ClaimPreviewCopy(path), Path(u"page__.html"_s));
    DropPreviewCopy(path);
    EXPECT_EQ(Content(u"page_.html"_s), "saved by another program");
}

TEST_F(PreviewCopies, AFileThatAppearsInAClaimedPlaceIsLeftAlone)
{
    const QString path = ClaimPreviewCopy(Path(u"page_.html"_s));
    Put(u"page_.html"_s, "author");
    EXPECT_FALSE(WritePreviewCopy(path, "preview"));
    DropPreviewCopy(path);
    EXPECT_EQ(Content(u"page_.html"_s), "author");
}

TEST_F(PreviewCopies, ALinkIsNotFollowed)
{
    ASSERT_TRUE(QFile::link(Path(u"not yet there"_s), Path(u"page_.html"_s)));
    EXPECT_EQ(ClaimPreviewCopy(Path(u"page_.html"_s)), Path(u"page__.html"_s));
    EXPECT_FALSE(WritePreviewCopy(Path(u"page_.html"_s), "preview"));
    EXPECT_EQ(Content(u"not yet there"_s), "missing");
}

TEST_F(PreviewCopies, NothingCanBeClaimedOrWrittenWithoutAName)
{
    EXPECT_EQ(ClaimPreviewCopy({}), QString());
    EXPECT_FALSE(WritePreviewCopy({}, "preview"));
    EXPECT_FALSE(WritePreviewCopy(ClaimPreviewCopy(Path(u"no folder/a_.html"_s)), "preview"));
}

// The author may save a page under the very name of a copy, in the same tick of the clock.
TEST_F(PreviewCopies, WhatTheAuthorHasSavedThereIsTheAuthorsFromThenOn)
{
    const QString path = ClaimPreviewCopy(Path(u"page_.html"_s));
    ASSERT_TRUE(WritePreviewCopy(path, "the same"));
    ForgetPreviewCopy(path);
    DropPreviewCopy(path);
    EXPECT_FALSE(WritePreviewCopy(path, "preview"));
    EXPECT_EQ(Content(u"page_.html"_s), "the same");
    EXPECT_EQ(ClaimPreviewCopy(path), Path(u"page__.html"_s));
}
