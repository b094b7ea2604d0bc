#pragma once

#include "support/SettingsStore.h"
#include "tests/support/PrivateHome.h"

#include <QFileInfo>

/// Settings and data directory of one test; those of the test program are put back at its end.
class FreshHome
{
public:
    FreshHome() = default;
    FreshHome(const FreshHome &) = delete;
    FreshHome &operator=(const FreshHome &) = delete;
    ~FreshHome()
    {
        brenix::UseSettingsDirectory(m_settingsBefore);
        qputenv("BRENIX_APPDIR", m_dataBefore);
    }

private:
    const QString m_settingsBefore = QFileInfo(brenix::SettingsFile()).path();
    const QByteArray m_dataBefore = qgetenv("BRENIX_APPDIR");
    const PrivateHome m_home;
};
