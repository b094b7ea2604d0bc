#include "app/frmAbout.h"

#include "app/frmSplash.h"
#include "support/Paths.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int PictureSize = 64;
    constexpr int CharactersWide = 56;

} // namespace

frmAbout::frmAbout(QWidget *parent)
    : FormDialog(u"frmAbout", u"About Brenix"_s, parent)
{
    Rows().Add(Title());
    QLabel *what = Rows().Note(
        u"An HTML editor for people who write HTML by hand: the source in colors and the page "
        "side by side, each key seen on the page a moment later, and a file that keeps every byte "
        "you did not change."_s);
    what->setMinimumWidth(fontMetrics().averageCharWidth() * CharactersWide);
    Rows().Note(u"Free software under the MIT License: you may use it, pass it on and change it. "
                "It comes without any warranty."_s);
    Rows().Note(u"Built with Qt %1 and Qt WebEngine."_s.arg(QString::fromLatin1(qVersion())));
    Rows().AddStretch();
    AddButtons({.ok = u"cmdOK", .cancel = nullptr});
}

QWidget *frmAbout::Title()
{
    auto *title = new QWidget(this);
    auto *picture = new QLabel(title);
    picture->setPixmap(
        QIcon(AppPath(u"brenix.png")).pixmap(QSize(PictureSize, PictureSize), devicePixelRatioF()));
    auto *name = new QLabel(u"Brenix"_s, title);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    name->setFont(large);
    auto *version = new QLabel(
        u"Version %1.%2  built %3"_s.arg(VersionMajor()).arg(VersionMinor()).arg(VersionBuild()),
        title);
    version->setObjectName(u"lblVersion"_s);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QGridLayout(title);
    layout->setContentsMargins(0, 0, 0, fontMetrics().lineSpacing() / 2);
    layout->setHorizontalSpacing(fontMetrics().lineSpacing());
    layout->addWidget(picture, 0, 0, 2, 1);
    layout->addWidget(name, 0, 1, Qt::AlignBottom);
    layout->addWidget(version, 1, 1, Qt::AlignTop);
    layout->setColumnStretch(1, 1);
    return title;
}

} // namespace brenix
