#pragma once

#include <QDialog>

namespace brenix {

/// Shows a picture at its natural size, with scroll bars where it is larger than the screen has
/// room for, or says why it cannot be shown.
class PictureViewer : public QDialog
{
public:
    explicit PictureViewer(const QString &path, QWidget *parent = nullptr);
};

} // namespace brenix
