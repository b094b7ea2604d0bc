#include "support/Modules.h"

#include <QCoreApplication>
#include <QFile>
#include <QPluginLoader>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

#if defined(Q_OS_WIN)
    const QString Suffix = u".dll"_s;
#else
    const QString Suffix = u".so"_s;
#endif

} // namespace

QString ModuleFile(const QString &name)
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    for (const QString &folder : {u"/"_s, u"/../lib/brenix/"_s}) {
        const QString file = programFolder + folder + name + Suffix;
        if (QFile::exists(file))
            return file;
    }
    return {};
}

LoadedModule LoadModule(const QString &name)
{
    const QString file = ModuleFile(name);
    if (file.isEmpty())
        return {nullptr, u"The module %1 is not installed."_s.arg(name)};
    QPluginLoader loader(file);
    return {loader.instance(), loader.errorString()};
}

} // namespace brenix
