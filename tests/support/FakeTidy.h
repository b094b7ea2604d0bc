#pragma once

#include "support/Paths.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

/// Lets a shell script stand in for Tidy in the application directory of the test.
inline void UseFakeTidy(const QByteArray &script)
{
    const QString path = brenix::AppPath(u"Tidy/tidydbg");
    QDir().mkpath(brenix::FolderOf(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script + '\n');
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
