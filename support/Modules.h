#pragma once

#include <QObject>
#include <QString>

namespace brenix {

/// The parts of the program that bring a large library along are modules, loaded when they are
/// first needed: linked to the program, their libraries would hold up every start.
struct LoadedModule
{
    QObject *root = nullptr; ///< lives as long as the program; null when the module is not there
    QString error; ///< why
};

/// The file of the module `name` ("brenix-web"): beside the program, else in the library directory
/// of the installation; empty when it is not installed.
QString ModuleFile(const QString &name);
LoadedModule LoadModule(const QString &name);

} // namespace brenix
