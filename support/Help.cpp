#include "support/Help.h"

namespace brenix {

namespace {

    HelpHandler &Handler()
    {
        static HelpHandler handler;
        return handler;
    }

    void Show(HelpPlace place, const QString &keyword = {})
    {
        if (Handler())
            Handler()(place, keyword);
    }

} // namespace

void SetHelpHandler(HelpHandler handler)
{
    Handler() = std::move(handler);
}

void ShowHelp(const QString &keyword)
{
    Show(HelpPlace::Keyword, keyword);
}

void ShowHelpContents()
{
    Show(HelpPlace::Contents);
}

void ShowHelpSearch()
{
    Show(HelpPlace::Search);
}

} // namespace brenix
