#pragma once

#include "app/ActivePage.h"

#include <QWidget>

namespace brenix {

/// The character map: a double click or Enter inserts the entity of a character. A field above it
/// finds all named characters, and a dialog turns whole texts into entities.
class CharacterPane : public QWidget
{
public:
    explicit CharacterPane(ActivePage activePage, QWidget *parent = nullptr);

private:
    void Translate();

    ActivePage m_activePage;
};

} // namespace brenix
