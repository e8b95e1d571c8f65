#include "calculators/degradation_chart_printout.h"

#include "charts/chart_place.h"

namespace wortlex {

PrintRequest degradation_printout(const HopDegradation& hop, float printer_scale) {
    return {"Wortlex Hop Time/Alpha Degradation Chart", printer_scale, [hop](PageContext& page) {
                draw_in_place(page.PlaceChart(ChartForm::alone), degradation_chart_size(true),
                              [&](Surface& surface) { draw_degradation_chart(surface, hop, true); });
            }};
}

} // namespace wortlex
