room_tests(databases_tests DEPENDS databases SOURCES databases/store_test.cpp)
