room_tests(sums_tests
    DEPENDS measures calculators mash water documents documents_records
    SOURCES measures/rounding_test.cpp measures/units_test.cpp measures/gravity_test.cpp
            measures/potential_test.cpp calculators/hop_bitterness_test.cpp calculators/beer_colour_test.cpp
            calculators/refractometer_test.cpp mash/mash_water_test.cpp water/water_balance_test.cpp
            documents/gravity_test.cpp documents/recalculation_test.cpp documents/session_figures_test.cpp
            documents/snapshot_test.cpp)
