#include "checks/SystemNetwork.h"

#include "checks/WebLinks.h"

namespace brenix {

std::unique_ptr<LinkTester> SystemNetwork::CreateLinkTester()
{
    return std::make_unique<WebLinks>();
}

} // namespace brenix
