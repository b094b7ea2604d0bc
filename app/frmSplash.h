#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;

namespace brenix {

/// The picture that stands while the program starts, with a line that says what it is at. A start
/// that takes no time worth a picture shows none.
class frmSplash : public QWidget
{
public:
    frmSplash();

    /// Shows a status text and lets it be drawn.
    void Say(const QString &text);

private:
    void showEvent(QShowEvent *event) override;
    void Build();

    QLabel *m_status = nullptr;
    QElapsedTimer m_sinceStart;
};

/// "2.0.0" in its three parts.
int VersionMajor();
int VersionMinor();
int VersionBuild();

} // namespace brenix
