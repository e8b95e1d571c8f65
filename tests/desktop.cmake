# Installs this build and starts it as a brewer would.
add_test(NAME installed_program_starts_in_its_brewery
    COMMAND ${PROJECT_SOURCE_DIR}/tests/install_test.sh ${PROJECT_BINARY_DIR})
