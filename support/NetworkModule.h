#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace brenix {

/// Asks servers whether there is a page behind an address: a few at a time, each for ten seconds at
/// most, without taking the page itself. What is still to be asked is dropped with the object.
class LinkTester
{
public:
    virtual ~LinkTester() = default;
    /// `answered` is called once, later: with false when the address cannot be asked, no server
    /// answers in time, or it has no such page.
    virtual void Try(const QString &address, std::function<void(bool isThere)> answered) = 0;
};

/// What the network module offers.
class NetworkModule
{
public:
    virtual ~NetworkModule() = default;
    virtual std::unique_ptr<LinkTester> CreateLinkTester() = 0;
};

} // namespace brenix

#define BrenixNetworkModuleId "org.brenix.NetworkModule/1"
Q_DECLARE_INTERFACE(brenix::NetworkModule, BrenixNetworkModuleId)
