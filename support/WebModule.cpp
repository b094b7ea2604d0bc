#include "support/WebModule.h"

#include "support/Modules.h"

#include <QCoreApplication>
#include <QDir>
#include <QOpenGLContext>

#include <utility>

QT_BEGIN_NAMESPACE
// Qt offers this to its own modules without a header.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    constexpr char quickBackend[] = "QT_QUICK_BACKEND";

    bool HasGraphicsCard()
    {
#ifdef Q_OS_LINUX
        return !QDir(u"/dev/dri"_s).entryList({u"renderD*"_s}, QDir::System).isEmpty();
#else
        return true;
#endif
    }

    // The engine crashes without a context to share. Qt's own switch for it must be set before the
    // application object and then triples the time until the window stands, because it sets up
    // OpenGL; so the context is made here. When the engine draws in software it only asks the
    // context for its format, and the costly part can be left out.
    void ShareGraphicsContext()
    {
        static QOpenGLContext *context = nullptr;
        if (context || QOpenGLContext::globalShareContext())
            return;
        context = new QOpenGLContext;
        if (qgetenv(quickBackend) != "software")
            context->create();
        qt_gl_set_global_share_context(context);
        qAddPostRoutine([] {
            qt_gl_set_global_share_context(nullptr);
            delete std::exchange(context, nullptr);
        });
    }

    const LoadedModule &TheModule()
    {
        static const LoadedModule loaded = [] {
            const QString name = u"brenix-web"_s;
            if (!ModuleFile(name).isEmpty())
                ShareGraphicsContext();
            return LoadModule(name);
        }();
        return loaded;
    }

} // namespace

WebModule *LoadWebModule()
{
    return qobject_cast<WebModule *>(TheModule().root);
}

QString WebModuleError()
{
    return TheModule().error;
}

void PrepareForWebModule()
{
    // Software OpenGL would make every key press in the window with the page many times dearer.
    if (!qEnvironmentVariableIsSet(quickBackend) && !HasGraphicsCard())
        qputenv(quickBackend, "software");
}

} // namespace brenix
