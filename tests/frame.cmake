room_tests(frame_tests DEPENDS frame frame_settings_forms SOURCES frame/frame_test.cpp frame/recovery_test.cpp
            frame/settings_forms/brewing_settings_test.cpp frame/settings_forms/settings_session_test.cpp
            frame/settings_forms/small_settings_test.cpp)

find_package(Qt6 REQUIRED COMPONENTS Test)
add_executable(windows_tests support/qt_main.cpp databases/windows/list_window_test.cpp desktop/desktop_test.cpp desktop/print_test.cpp
    documents/windows/printing_test.cpp documents/windows/recipe_window_test.cpp frame/windows/main_window_test.cpp mash/windows/mash_windows_test.cpp)
target_include_directories(windows_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(windows_tests PRIVATE frame_windows Qt6::Test GTest::gmock GTest::gtest)
add_test(NAME windows_tests COMMAND windows_tests)
