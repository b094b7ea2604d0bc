#pragma once

#include <QObject>

class QWidget;

namespace brenix {

class BrowserView;
class DesignView;

/// What the web engine module offers. The engine is a large library: it is loaded when the first
/// page is shown, not when the program starts, so that the source can be edited at once.
class WebModule
{
public:
    virtual ~WebModule() = default;
    virtual BrowserView *CreateBrowserView(QWidget *parent) = 0;
    virtual DesignView *CreateDesignView(QWidget *parent) = 0;
};

/// The module, loaded at the first call; null when it is not installed or cannot be loaded, and
/// `WebModuleError` then says why.
WebModule *LoadWebModule();
QString WebModuleError();

/// To be called before the application object exists: chooses what the web engine draws with.
void PrepareForWebModule();

} // namespace brenix

#define BrenixWebModuleId "org.brenix.WebModule/1"
Q_DECLARE_INTERFACE(brenix::WebModule, BrenixWebModuleId)
