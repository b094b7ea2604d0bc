#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A test with a folder of its own, for the pages of an author.
class WithFolder
{
protected:
    QString Write(const QString &name, const QByteArray &bytes)
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    static QByteArray Read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    QTemporaryDir folder;
};
