#pragma once

#include "support/FormDialog.h"
#include "tags/ImageMarkup.h"

namespace brenix {

class DocumentModel;

/// "Insert Image". In edit mode the page's selection is the tag, which OK writes anew.
class frmImage : public FormDialog
{
public:
    enum class Mode { Insert, Edit };
    frmImage(DocumentModel &page, Mode mode, QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    void BuildSource();
    void BuildSizes();
    void BuildLink();
    void ChoosePicture();
    void ReadSize();
    void ViewPicture();
    void GenerateAlternative();
    void MarkSizes();
    QString PictureFile() const;

    DocumentModel &m_page;
    const Mode m_mode;
    Image m_image;
    QComboBox *m_source = nullptr; // Text1
    QLineEdit *m_alternative = nullptr; // Text2
    QLineEdit *m_width = nullptr; // Text3
    QLineEdit *m_height = nullptr; // Text4
};

} // namespace brenix
