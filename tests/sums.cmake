room_tests(sums_tests
    DEPENDS measures calculators mash water documents documents_records
    SOURCES measures/measures_test.cpp calculators/calculators_test.cpp calculators/hop_calculators_test.cpp calculators/printouts_test.cpp mash/mash_and_water_test.cpp
            documents/documents_test.cpp documents/line_forms_test.cpp documents/recipe_editor_test.cpp documents/recipe_form_test.cpp documents/recipe_saving_test.cpp mash/strike_calculator_test.cpp)
