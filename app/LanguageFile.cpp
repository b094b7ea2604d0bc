#include "app/LanguageFile.h"

#include "support/ListInput.h"

namespace brenix {

namespace {

    // "mnuList" is the macro list: the place of the list dialog was never filled.
    // clang-format off
    constexpr const char16_t *Slots[] = {
        u"mnuFile", u"mnuFileNew", u"mnuFileOpen", u"mnuOpenFromWeb", u"mnuFileSave",
        u"mnuFileSaveAs", u"mnuFileSaveAll", u"mnuFileClose", u"mnuFilePrint", u"mnuFilePageSetup",
        u"mnuFileExit", u"mnuEdit", u"mnuEditTag", u"mnuEditUndo", u"mnuEditmnuEditRedo",
        u"mnuEditCut", u"mnuEditCopy", u"mnuEditPaste", u"mnuDelete", u"mnuPasteHTML", u"mnuFormat",
        u"mnuFormatHiachal", u"mnuCompact", u"mnuSimple", u"mnuCase", u"mnuLowercase", u"mnuUpper",
        u"mnuSearcher", u"mnuEditSearchandReplace", u"mnuSearchNext", u"mnuEditmnuEditSearch",
        u"mnuGoto", u"mnuSelectAll", u"mnuView", u"mnuViewToolbar", u"mnuViewStatusBar",
        u"mnuToolboxs", u"mnuViewMode", u"mnuSplitMode", u"mnuHtmlMode", u"mnuPreviewMode",
        u"mnuDesignMode", u"mnuViewRefresh", u"mnuToolsOptions", u"mnuInsert", u"mnuStartTag",
        u"mnuEndTag", u"mnuInsertComment", u"mnuFont", u"mnuFontDialog", u"mnuActiveX",
        u"mnuBackground", u"mnuHR", u"mnuInsertHyperlink", u"mnuInsertImage", u"mnuFlash",
        u"mnuJava", u"mnuMarquee", u"mnuSound", u"mnuForm", u"mnuInsertframe", u"mnuInsertLayer",
        u"mnuList", u"mnuTable", u"mnuMeta", u"mnuKeywords", u"mnuInsertColor", u"mnuDateTime",
        u"mnuTextFormat", u"mnuFadedText", u"mnuWave", u"mnuWindow", u"mnuWindowNewWindow",
        u"mnuActiveDoc", u"mnuWindowCascade", u"mnuWindowTileHorizontal", u"mnuWindowTileVertical",
        u"mnuWindowArrangeIcons", u"mnuHelp", u"mnuHelpContents", u"mnuHelpSearchForHelpOn",
        u"mnuHelpTag", u"mnuHTMLreference", u"mnuHelpTip", u"mnuForum", u"mnuHistory",
        u"mnuCheckforUpdates", u"mnuHelpAbout",
    };
    // clang-format on

    constexpr qsizetype LongestCaption = 200; // a file of another kind may have megabytes of it

} // namespace

void ReadLanguage(QStringView text,
                  const std::function<void(const QString &menuName, const QString &caption)> &apply)
{
    ListInput input(text);
    for (const char16_t *slot : Slots) {
        const std::optional<QString> caption = input.Next();
        if (!caption)
            return;
        // A menu without a caption could not be found any more.
        if (!caption->trimmed().isEmpty())
            apply(QString::fromUtf16(slot), caption->left(LongestCaption));
    }
}

} // namespace brenix
