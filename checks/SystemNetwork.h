#pragma once

#include "support/NetworkModule.h"

namespace brenix {

/// The root object of the network module.
class SystemNetwork final : public QObject, public NetworkModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BrenixNetworkModuleId)
    Q_INTERFACES(brenix::NetworkModule)

public:
    std::unique_ptr<LinkTester> CreateLinkTester() override;
};

} // namespace brenix
