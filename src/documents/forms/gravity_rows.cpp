#include "documents/forms/gravity_rows.h"

#include "measures/twins.h"

#include <algorithm>
#include <memory>

namespace wortlex {
namespace {

// The two scales are no exact inverses: a Plato worked out from its own SG would change as the field is left.
class KeptPlato {
public:
    explicit KeptPlato(float& sg) : sg_(sg), twin_(of_sg(sg)) {}

    float shown() {
        if (twin_.sg != sg_) twin_ = of_sg(sg_);
        return twin_.plato;
    }
    void take(float plato) {
        twin_ = of_plato(plato);
        sg_ = twin_.sg;
    }

private:
    float& sg_;
    TwinGravity twin_;
};

} // namespace

GravityFields gravity_fields(Rows& rows, const std::string& key, const std::string& label, float& sg,
                             float highest, const Settings& settings) {
    const auto kept = std::make_shared<KeptPlato>(sg);
    auto& gravity =
        rows.sg(key, sg, settings).label(label).range(1.0F, highest).step(0.001F).outside(Outside::clamp);
    auto& plato =
        rows.plato(key + "_plato",
                   {[kept] { return kept->shown(); }, [kept](float typed) { kept->take(typed); }}, settings)
            .range(1.0F, 100.0F)
            .step(0.1F)
            .outside(Outside::clamp);
    return {gravity, plato};
}

ButtonRow& measure_button(Rows& rows, const std::string& key, const std::string& caption, float& sg,
                          float highest, const MeasureGravity& measure, const std::function<void()>& tell) {
    std::function<void()> press;
    if (measure)
        press = [&sg, highest, measure, tell] {
            const auto measured = measure(sg);
            if (!measured) return;
            sg = *measured > 1.0F ? std::min(*measured, highest) : 1.0F; // what is no number too
            tell();
        };
    return rows.button(key, caption, std::move(press));
}

} // namespace wortlex
