#pragma once

#include "support/FormDialog.h"

#include <QTimer>

namespace brenix {

class TiledPreview;

/// The gallery of background pictures: those of the program, or those in a folder of the author's.
/// OK hands the path of the picture to `chosen`.
class frmBackground : public FormDialog
{
public:
    explicit frmBackground(std::function<void(const QString &imagePath)> chosen,
                           QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    QWidget *FolderRow();
    void ListFolder(const QString &folder);
    void AskFolder();
    void DrawNextThumbnail();
    void ShowCurrent();
    QString CurrentPath() const;

    std::function<void(const QString &)> m_chosen;
    QListWidget *m_gallery;
    TiledPreview *m_preview;
    QLabel *m_place;
    QPushButton *m_own = nullptr;
    QTimer m_thumbnails; ///< draws one each time the window has nothing else to do
    int m_nextThumbnail = 0;
};

} // namespace brenix
