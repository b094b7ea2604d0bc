#pragma once

#include "support/SettingsStore.h"

#include <QTemporaryDir>

#include <cstdlib>

/// Settings and data of one run of a test program, so that it neither sees nor touches the user's
/// own. To be made before the application object and before anything asks for a setting.
class PrivateHome
{
public:
    PrivateHome()
    {
        if (!m_settings.isValid() || !m_data.isValid())
            std::abort();
        brenix::UseSettingsDirectory(m_settings.path());
        qputenv("BRENIX_APPDIR", m_data.path().toLocal8Bit());
    }

private:
    QTemporaryDir m_settings;
    QTemporaryDir m_data;
};
