#include "databases/malt_yields.h"

#include "base/number.h"
#include "measures/gravity.h"

namespace wortlex {

MaltYields yields_of(const MaltRecord& malt) {
    return {.potential = malt.potential,
            .fine_dry = yield_from_sg(malt.potential),
            .difference = narrow(double{malt.fine_yield} - malt.coarse_yield),
            .moisture = malt.moisture};
}

void store_yields(const MaltYields& yields, MaltRecord& malt) {
    malt.potential = yields.potential;
    malt.moisture = yields.moisture;
    malt.fine_yield = yields.fine_dry;
    malt.coarse_yield = coarse_dry(yields);
}

float fine_as_is(const MaltYields& yields) {
    return as_is_yield(yields.fine_dry, yields.moisture);
}

float coarse_dry(const MaltYields& yields) {
    return narrow(double{yields.fine_dry} - yields.difference);
}

float coarse_as_is(const MaltYields& yields) {
    return as_is_yield(coarse_dry(yields), yields.moisture);
}

void set_potential(MaltYields& yields, float sg) {
    yields.potential = sg < 0 ? 0 : sg;
    yields.fine_dry = yield_from_sg(yields.potential);
}

void set_fine_dry(MaltYields& yields, float percent) {
    yields.fine_dry = percent;
    yields.potential = sg_from_yield(percent);
}

void set_fine_as_is(MaltYields& yields, float percent) {
    set_fine_dry(yields, dry_yield(percent, yields.moisture));
}

void set_coarse_dry(MaltYields& yields, float percent) {
    yields.difference = narrow(double{yields.fine_dry} - percent);
}

void set_coarse_as_is(MaltYields& yields, float percent) {
    set_coarse_dry(yields, dry_yield(percent, yields.moisture));
}

} // namespace wortlex
