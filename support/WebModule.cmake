# The web engine is a large library: linked here alone, and loaded when the first page is shown.
add_library(brenix-web MODULE
    DesignPage.cpp
    DesignScheme.cpp
    LocalFileGuard.cpp
    PageSetup.cpp
    PreviewPage.cpp
    WebDesignView.cpp
    WebEngineModule.cpp
    WebEngineView.cpp
)
brenix_module(brenix-web)
qt_add_resources(brenix-web design PREFIX /
    FILES design.js designEdit.js designHistory.js designMarks.js designTables.js
)
target_link_libraries(brenix-web PRIVATE brenix-logic Qt6::WebEngineWidgets)
