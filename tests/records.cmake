room_tests(records_tests
    DEPENDS base frame_settings databases_records mash_records water_records documents_records calculators
    SOURCES
        base/files_test.cpp
        base/number_test.cpp
        frame/settings/system_settings_test.cpp
        frame/settings/system_files_test.cpp
        databases/records/ingredients_test.cpp
        databases/records/database_file_test.cpp
        mash/records/schedule_file_test.cpp
        documents/records/document_layout_test.cpp
        documents/records/document_files_test.cpp
        documents/records/damaged_files_test.cpp
        documents/records/new_documents_test.cpp
        calculators/color_table_test.cpp)
