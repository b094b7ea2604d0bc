#pragma once

#include "app/ReferenceWindow.h"

namespace brenix {

/// The functions of server scripts and the objects of the page.
class Form32 : public ReferenceWindow
{
public:
    explicit Form32(std::function<void(const QString &member)> insert, QWidget *parent = nullptr);
};

} // namespace brenix
