# The views of the web engine module, in a program of their own.
target_sources(web-tests PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/WebDesignViewTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WebEngineTest.cpp
)
target_link_libraries(web-tests PRIVATE Qt6::WebEngineWidgets)
