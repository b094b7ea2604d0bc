#pragma once

#include "app/ReferenceWindow.h"

namespace brenix {

/// The objects of data access and their members, for pages that a server runs.
class Form31 : public ReferenceWindow
{
public:
    explicit Form31(std::function<void(const QString &member)> insert, QWidget *parent = nullptr);
};

} // namespace brenix
