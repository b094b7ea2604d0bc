# The views of the web engine module. To be included by the folder that adds the test: its properties are set here. The
# test machines run as root, where the engine starts only without its sandbox.
find_package(Qt6 6.4 REQUIRED COMPONENTS WebEngineWidgets)
target_sources(web-tests PRIVATE ${CMAKE_CURRENT_LIST_DIR}/WebEngineTest.cpp)
target_link_libraries(web-tests PRIVATE Qt6::WebEngineWidgets)
set_tests_properties(web-tests PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QTWEBENGINE_DISABLE_SANDBOX=1")
