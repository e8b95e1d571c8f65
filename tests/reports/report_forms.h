// What the tests of reports share: settings to read them under, and the comparison with what was read.
#pragma once

#include "support/file_content.h"
#include "support/measured_in.h"

#include <gtest/gtest.h>

namespace wortlex {

inline SystemSettings metric_brewery() {
    auto image = WriteDefaultSettings();
    image.system_mode = SystemMode::pro_brewer;
    measure_in(image, Units::metric);
    image.color_units = ColorUnits::ebc_traditional;
    image.potential_display = PotentialDisplay::plato;
    image.plato_precision = 2;
    image.evaporation_by_volume = 1;
    image.display_home_bittering = 1;
    image.HopFormula = HopFormulaCode::Generic;
    return image;
}

// Golden files have plain line ends; a report must have the other ones throughout.
inline std::string plain_lines(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') plain += text[i];
        EXPECT_EQ(text[i] == '\r', i + 1 < text.size() && text[i + 1] == '\n') << "at " << i;
    }
    return plain;
}

inline std::string golden(const std::string& name, const std::string& made) {
    auto kept = content_of(GOLDEN_FOLDER + name);
    if (kept != made) write_content(testing::TempDir() + name, made);
    return kept;
}

inline void expect_golden(const std::string& name, const std::string& made) {
    EXPECT_EQ(made, golden(name, made)) << "made: " << testing::TempDir() << name;
}

} // namespace wortlex
