#include "databases/inventory.h"

#include "base/number.h"
#include "databases/messages.h"

#include <algorithm>
#include <memory>

namespace wortlex {
namespace {

enum class Direction : std::int32_t { add = 0, subtract = 1 };

struct Movement {
    bool is_from_zero = false; ///< what is there counts for nothing
    float amount = 0;          ///< in the unit shown
    Direction direction = Direction::add;
};

float stock_before(const Movement& movement, const InventorySubject& subject) {
    return movement.is_from_zero ? 0.0F : subject.stock;
}

float moved(const Movement& movement, const InventorySubject& subject) {
    const float stock = stock_before(movement, subject);
    if (movement.amount == 0) return stock;
    const float amount = subject.from_shown(movement.amount);
    if (movement.direction == Direction::add) return narrow(double{stock} + amount);
    return narrow(std::max(0.0, double{stock} - amount));
}

} // namespace

void inventory_form(Form& form, const InventorySubject& subject, Prompts& prompts) {
    const auto movement = std::make_shared<Movement>();
    auto& rows = form.group("Inventory");
    rows.shown("name", [name = subject.name] { return name; })
        .label("Name")
        .width(std::clamp(static_cast<int>(subject.name.size()) + 2, 30, 60));
    rows.shown_number(
            "stock", [movement, subject] { return subject.to_shown(stock_before(*movement, subject)); },
            "%0.2f")
        .label("In Stock (" + subject.unit + ")");
    rows.number("amount", movement->amount)
        .label("&Amount (" + subject.unit + ")")
        .typed(0.0F, subject.most_typed)
        .spun(0.0F, 10000.0F, 1.0F);
    rows.choice("change", movement->direction, {"A&dd Amount", "&Subtract Amount"});
    rows.button("set_to_zero", "Set To &Zero", [movement, &form, &prompts] {
        if (prompts.ask_yes_no({.text = set_to_zero, .icon = Icon::question}) != Answer::yes) return;
        movement->is_from_zero = true;
        if (form.show_again) form.show_again(nullptr);
    });
    form.on_accept([movement, subject] { subject.stock = moved(*movement, subject); });
}

} // namespace wortlex
