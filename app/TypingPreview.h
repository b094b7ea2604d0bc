#pragma once

#include <QLabel>
#include <QTimer>

namespace brenix {

/// Plays how a start tag is typed, one key a tick, for as long as it can be seen.
class TypingPreview : public QLabel
{
public:
    explicit TypingPreview(QWidget *parent = nullptr);

    /// Whether the end tag comes with the last key.
    void SetInsertsEndTag(bool inserts);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void Tick();

    QTimer m_timer; // Timer3
    int m_state = 0;
    bool m_insertsEndTag = false;
};

/// A frame with a sample of source in it.
void MakeSample(QLabel *label);

} // namespace brenix
