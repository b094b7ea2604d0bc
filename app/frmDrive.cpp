#include "app/frmDrive.h"

#include "app/BrowserSearch.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

frmDrive::frmDrive(const BrowserProgram &program, QWidget *parent)
    : FormDialog(u"frmDrive", u"Select drive"_s, parent)
{
    QStringList roots;
    for (const QFileInfo &drive : QDir::drives())
        roots += QDir::toNativeSeparators(drive.absoluteFilePath());
    m_root = roots.value(0);
    Rows().Note(
        u"Brenix need to know which drive %1 lies on in order to find the path. Please select it "
        "from the dropdown list below.%2"_s.arg(program.title, program.remark));
    Rows().Choice(u"Drive1", u"&Drive:"_s, roots, m_root);
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});
}

} // namespace brenix
