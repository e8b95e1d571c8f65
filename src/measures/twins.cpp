#include "measures/twins.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>

namespace wortlex {

TwinDegrees of_fahrenheit(float fahrenheit) {
    return {fahrenheit, celsius_from_fahrenheit(fahrenheit)};
}

TwinDegrees of_celsius(float celsius) {
    return {fahrenheit_from_celsius(celsius), celsius};
}

// The scales are cut off to whole digits, which would make a number of anything.
TwinGravity of_sg(float sg) {
    return {sg, std::isfinite(sg) ? sg_to_plato(sg) : sg};
}

TwinGravity of_plato(float plato) {
    return {std::isfinite(plato) ? plato_to_sg(plato) : plato, plato};
}

TwinGallons of_gallons(float gallons) {
    const float volume = std::max(gallons, 0.0F);
    return {volume, narrow(volume * litres_per_gallon)};
}

// Not exactly the way back.
TwinGallons gallons_of_litres(float litres) {
    const float volume = std::max(litres, 0.0F);
    return {narrow(volume * gallons_per_litre), volume};
}

} // namespace wortlex
