room_tests(frame_tests DEPENDS frame SOURCES frame/frame_test.cpp)
