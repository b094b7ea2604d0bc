#include "help/TagTopics.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    bool Complain(const QString &message)
    {
        std::fprintf(stderr, "make-tag-topics: %s\n", qUtf8Printable(message));
        return false;
    }

    bool WritePage(const QDir &folder, const HelpPage &page)
    {
        QFile file(folder.filePath(page.file));
        const QByteArray bytes = page.html.toUtf8();
        return (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
                && file.flush())
            || Complain(file.fileName() + u": "_s + file.errorString());
    }

    // The folder holds nothing but the topics of tags.
    bool Make(const QString &table, const QString &folderName)
    {
        QFile file(table);
        if (!file.open(QIODevice::ReadOnly))
            return Complain(table + u": "_s + file.errorString());
        const TagTopics topics = MakeTagTopics(ParseMeanings(QString::fromUtf8(file.readAll())));
        for (const QString &error : topics.errors)
            Complain(table + u": "_s + error);
        if (!topics.errors.isEmpty())
            return false;
        const QDir folder(folderName);
        if (!folder.mkpath(u"."_s))
            return Complain(folderName + u": cannot be made"_s);
        for (const QString &old : folder.entryList({u"*.html"_s}, QDir::Files))
            QFile::remove(folder.filePath(old));
        return std::all_of(topics.pages.begin(), topics.pages.end(), [&](const HelpPage &page) {
            return WritePage(folder, page);
        });
    }

} // namespace

} // namespace brenix

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make-tag-topics MEANINGS FOLDER\n", stderr);
        return 2;
    }
    return brenix::Make(arguments[1], arguments[2]) ? 0 : 1;
}
