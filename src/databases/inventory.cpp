#include "databases/inventory.h"

#include "base/number.h"
#include "databases/messages.h"

#include <memory>

namespace wortlex {
namespace {

enum class Direction : std::int32_t { add = 0, subtract = 1 };

struct Movement {
    float stock = 0;
    float amount = 0; ///< in the unit shown
    Direction direction = Direction::add;
};

float moved(const Movement& movement, const InventorySubject& subject) {
    const float amount = subject.from_shown(movement.amount);
    if (movement.direction == Direction::add) return narrow(double{movement.stock} + amount);
    return narrow(std::max(0.0, double{movement.stock} - amount));
}

} // namespace

void inventory_form(Form& form, const InventorySubject& subject, Prompts& prompts) {
    const auto movement = std::make_shared<Movement>(Movement{.stock = subject.stock});
    auto& rows = form.group("Inventory");
    rows.shown("name", [name = subject.name] { return name; }).label("Name").width(30);
    rows.shown_number(
            "stock", [movement, to_shown = subject.to_shown] { return to_shown(movement->stock); }, "%0.2f")
        .label("In Stock (" + subject.unit + ")");
    rows.number("amount", movement->amount)
        .label("&Amount (" + subject.unit + ")")
        .typed(0.0F, subject.most_typed)
        .spun(0.0F, 10000.0F, 1.0F);
    rows.choice("change", movement->direction, {"A&dd Amount", "&Subtract Amount"});
    rows.button("set_to_zero", "Set To &Zero", [movement, &form, &prompts] {
        if (prompts.ask_yes_no({.text = set_to_zero, .icon = Icon::question}) != Answer::yes) return;
        movement->stock = 0;
        if (form.show_again) form.show_again(nullptr);
    });
    form.on_accept([movement, subject] {
        if (movement->amount != 0) movement->stock = moved(*movement, subject);
        subject.store(movement->stock);
    });
}

} // namespace wortlex
