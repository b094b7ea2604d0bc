#include "app/TypingPreview.h"
#include "app/frmOptions.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace brenix {

void frmOptions::BuildClosingTag(Form &form)
{
    form.Check(u"Check4",
               u"Do you want Brenix to automaticly insert the closing tag when you press \">\"?"_s,
               m_options.closeTag);
    form.Note(u"Which version do you want to use?"_s);
    form.Options({{u"Option11", u"&Insert the closing tag behind the caret"_s, 1},
                  {u"Option12", u"&Show the closing tag in a list"_s, 2}},
                 m_options.closeTagVersion);
    auto *preview = new TypingPreview;
    preview->setObjectName(u"Label3"_s);
    form.Add(preview);
    const auto *inserts = findChild<QRadioButton *>(u"Option11"_s);
    connect(inserts, &QRadioButton::toggled, preview, &TypingPreview::SetInsertsEndTag);
    preview->SetInsertsEndTag(inserts->isChecked());
}

void frmOptions::BuildAutocomplete(Form &form)
{
    struct List
    {
        const char16_t *check;
        const char16_t *duration;
        QString names;
        QString key;
        QString list;
        bool &isOn;
        int &milliseconds;
    };
    const List lists[] = {
        {u"Check5",
         u"Text2",
         u"tags"_s,
         u"\">\""_s,
         u"taglist"_s,
         m_options.tag,
         m_options.tagDuration},
        {u"Check6",
         u"Text3",
         u"attributes"_s,
         u"blank"_s,
         u"attributelist"_s,
         m_options.attribute,
         m_options.attributeDuration},
        {u"Check11",
         u"Text12",
         u"values"_s,
         u"\"=\""_s,
         u"valuelist"_s,
         m_options.value,
         m_options.valueDuration},
    };
    for (const List &list : lists) {
        form.Check(list.check,
                   u"Do you want to activate the autocompletion of %1 function?"_s.arg(list.names),
                   list.isOn);
        form.Number(list.duration,
                    u"How long time do you want to wait from the moment you press the %1 key to "
                    "the %2 pops up?"_s.arg(list.key, list.list),
                    0,
                    MostDuration,
                    list.milliseconds)
            ->setSuffix(u" ms"_s);
    }
    form.Check(u"Check7",
               u"Please insert the \">\" after the tag is inserted too."_s,
               m_options.tagInsertGT);
    form.Lines(u"Words", u"&Words:"_s, m_options.words);
}

void frmOptions::BuildWordWrap(Form &form)
{
    form.Check(u"Check8", u"Do you want to use the WordWrap feature?"_s, m_options.wordWrap);
}

void frmOptions::BuildAutoSave(Form &form)
{
    form.Check(u"Check9", u"Do you want to use the AutoSave function?"_s, m_options.autoSave);
}

void frmOptions::BuildTagCase(Form &form)
{
    const QCheckBox *lowerCase
        = form.Check(u"Check10", u"Insert tags in lowercase?"_s, m_options.lowerCaseTags);
    auto *preview = new QLabel;
    preview->setObjectName(u"Label2"_s);
    MakeSample(preview);
    form.Add(preview);
    const auto show = [preview](bool isLowerCase) {
        preview->setText(isLowerCase ? u"<html>"_s : u"<HTML>"_s);
    };
    connect(lowerCase, &QCheckBox::toggled, preview, show);
    show(lowerCase->isChecked());
}

void frmOptions::BuildDesign(Form &form)
{
    form.Note(u"The design view has no options of its own."_s);
}

} // namespace brenix
