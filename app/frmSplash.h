#pragma once

#include <QWidget>

class QLabel;

namespace brenix {

/// The picture that stands while the program starts, with a line that says what it is at.
class frmSplash : public QWidget
{
public:
    frmSplash();

    /// Shows a status text and lets it be drawn.
    void Say(const QString &text);

private:
    QLabel *m_status;
};

/// "2.0.0" in its three parts.
int VersionMajor();
int VersionMinor();
int VersionBuild();

} // namespace brenix
