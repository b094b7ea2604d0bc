# The web engine is a large library: linked here alone, and loaded when the first page is shown.
add_library(brenix-web MODULE
    LocalFileGuard.cpp
    PreviewPage.cpp
    WebEngineModule.cpp
    WebEngineView.cpp
)
brenix_target(brenix-web)
target_link_libraries(brenix-web PRIVATE Qt6::WebEngineWidgets)
set_target_properties(brenix-web PROPERTIES PREFIX "")
install(TARGETS brenix-web LIBRARY DESTINATION lib/brenix)
