#include "app/DroppedFiles.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr int ShortestName = 4;
}

QStringList DroppedPaths(const QStringList &names)
{
    QStringList paths;
    for (const QString &name : names) {
        if (name.size() < ShortestName)
            continue;
        QFileInfo file(name);
        if (name.endsWith(u".lnk", Qt::CaseInsensitive) && file.isSymLink())
            file.setFile(file.symLinkTarget());
        QString path = QDir::toNativeSeparators(file.absoluteFilePath());
        if (file.isDir()) {
            if (!path.endsWith(QDir::separator()))
                path += QDir::separator();
        } else if (!file.isFile()) {
            continue;
        }
        paths.append(path);
    }
    return paths;
}

} // namespace brenix
