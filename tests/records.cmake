room_tests(records_tests
    DEPENDS base frame_settings measures_fields databases_records mash_records water_records documents_records
            calculators jpeg
    SOURCES base/base_test.cpp frame/settings/settings_test.cpp measures/fields/numeric_fields_test.cpp measures/fields/form_test.cpp
            databases/records/database_file_test.cpp mash/records/schedule_file_test.cpp
            documents/records/record_tables_test.cpp documents/records/document_files_test.cpp
            calculators/color_table_test.cpp calculators/color_utility_test.cpp jpeg/jpeg_test.cpp)
