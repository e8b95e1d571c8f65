// Quantities that fields show in two units at a time: as typed in the one, and worked out in the other.
#pragma once

namespace wortlex {

struct TwinDegrees {
    float fahrenheit = 0;
    float celsius = 0;
};

struct TwinGravity {
    float sg = 1;
    float plato = 0;

    bool operator==(const TwinGravity&) const = default;
};

struct TwinGallons {
    float gallons = 0;
    float litres = 0;
};

/// Both units from the one that was typed. A volume below 0 counts as 0; what is no number has no twin.
TwinDegrees of_fahrenheit(float fahrenheit);
TwinDegrees of_celsius(float celsius);
TwinGravity of_sg(float sg);
TwinGravity of_plato(float plato);
TwinGallons of_gallons(float gallons);
TwinGallons gallons_of_litres(float litres);

} // namespace wortlex
