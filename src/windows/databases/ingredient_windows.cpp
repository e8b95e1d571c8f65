#include "windows/databases/ingredient_windows.h"

#include "base/ports/quiet_prompts.h"
#include "databases/extras.h"
#include "databases/hops.h"
#include "databases/malts.h"
#include "databases/styles.h"
#include "databases/water.h"
#include "databases/water_hardness.h"
#include "databases/yeasts.h"
#include "desktop/form_dialog.h"
#include "program/fault_log.h"

#include <QApplication>

namespace wortlex {
namespace {

ListPorts list_ports(const WindowPorts& ports) {
    return {places(ports.program), ports.files, ports.prompts, LoadOtherNames(ports.program.data_folder)};
}

void open(IngredientList& list, const WindowPorts& ports) {
    list.print = [&pages = ports.pages, &settings = ports.program.settings](PrintRequest request) {
        request.printer_scale = settings.printer_scale;
        pages.show(request);
    };
    list.open(ports.prompts);
}

ListSource source(ListSide side, const WindowPorts& ports) {
    return {side, ports.program.settings, ports.program.data_folder};
}

// Runs the window that keeps a database.
void keep(IngredientList& list, const WindowPorts& ports, QWidget* owner) {
    open(list, ports);
    ListWindow(list, list_ports(ports), Opener::main, nullptr, owner).exec();
    // Who closes it is asked; a signal that ends the program is not.
    if (const auto lost = list.unsaved_count(); lost > 0)
        user_log().note("The program was ended before " + std::to_string(lost) + " changed entries of " +
                        list.caption() + " were saved.");
    ports.program.notices.tell(Change::databases);
}

template <class Record>
void keep(ListMaker<Record> make, const WindowPorts& ports, QWidget* owner) {
    Database<Record> database;
    keep(*make(source(ListSide::maintenance, ports), database), ports, owner);
}

// Runs a pick list from the choice of the last pick. A pick keeps the new choice, leaving the list the old
// one. `picked` is told the window, and answers whether it is done, which it is not while it stays open.
void run_pick(IngredientList& list, ListChoice& choice, const std::function<bool(QWidget*)>& picked,
              const WindowPorts& ports, Opener opener, QWidget* owner, bool* stays_open = nullptr) {
    list.filter = static_cast<std::int32_t>(choice.filter);
    list.only_in_stock = choice.only_in_stock;
    open(list, ports);
    ListWindow* shown = nullptr;
    bool is_picked = false;
    const auto note = [&] {
        const bool is_done = picked(shown);
        is_picked = is_picked || is_done;
        return is_done;
    };
    ListWindow window(list, list_ports(ports), opener, note, owner, stays_open);
    shown = &window;
    window.exec();
    if (is_picked) choice = {static_cast<std::size_t>(list.filter), list.only_in_stock};
}

template <class Record>
std::optional<Record> pick(RecordList<Record>& list, ListChoice& choice, const WindowPorts& ports,
                           Opener opener, QWidget* owner) {
    std::optional<Record> chosen;
    const auto take = [&](QWidget*) {
        chosen = list.selected_record();
        return true;
    };
    run_pick(list, choice, take, ports, opener, owner);
    return chosen;
}

template <class Record>
std::optional<Record> pick(ListMaker<Record> make, ListChoice& choice, const WindowPorts& ports,
                           Opener opener, QWidget* owner) {
    Database<Record> database; // a pick never sees unsaved edits
    return pick(*make(source(ListSide::pick, ports), database), choice, ports, opener, owner);
}

// A list with the database that it stands on.
template <class Record>
struct OwnList {
    Database<Record> database;
    std::unique_ptr<RecordList<Record>> list;
};

template <class Record>
std::shared_ptr<RecordList<Record>> read_all(ListMaker<Record> make, const WindowPorts& ports) {
    const auto own = std::make_shared<OwnList<Record>>();
    own->list = make(source(ListSide::pick, ports), own->database);
    QuietPrompts nobody;
    own->list->open(nobody);
    return {own, own->list.get()};
}

template <class Record>
void pick_some(ListMaker<Record> make, ListChoice& choice, const UsePicked<Record>& use,
               const WindowPorts& ports, Opener opener, QWidget* owner) {
    Database<Record> database;
    const auto list = make(source(ListSide::pick, ports), database);
    const auto hand_on = [&](QWidget*) {
        use(*list->selected_record());
        return true;
    };
    run_pick(*list, choice, hand_on, ports, opener, owner, &ports.program.picks.stays_open);
}

template <class MakeForm>
auto converter(const WindowPorts& ports, std::string_view dialog_template, MakeForm make_form) {
    return [ports, dialog_template, make_form](WaterRecord& water) {
        Form form;
        make_form(form, water);
        run_dialog(form, {.template_name = dialog_template}, places(ports.program),
                   QApplication::activeModalWidget());
    };
}

WaterConverters converters(const WindowPorts& ports) {
    return {.calcium = converter(ports, "WATER_CAHARD", calcium_hardness_form),
            .magnesium = converter(ports, "WATER_MGHARD", magnesium_hardness_form),
            .alkalinity = converter(ports, "WATER_CACO3", alkalinity_form)};
}

} // namespace

void keep_styles(const WindowPorts& ports, QWidget* owner) {
    keep(style_list, ports, owner);
}

void keep_malts(const WindowPorts& ports, QWidget* owner) {
    keep(malt_list, ports, owner);
}

void keep_hops(const WindowPorts& ports, QWidget* owner) {
    keep(hop_list, ports, owner);
}

void keep_yeasts(const WindowPorts& ports, QWidget* owner) {
    keep(yeast_list, ports, owner);
}

void keep_waters(const WindowPorts& ports, QWidget* owner) {
    keep(*water_list(source(ListSide::maintenance, ports), ports.program.water_database, converters(ports)),
         ports, owner);
}

void keep_extras(const WindowPorts& ports, QWidget* owner) {
    keep(extra_list, ports, owner);
}

std::optional<StyleRecord> pick_style(const WindowPorts& ports, Opener opener, QWidget* owner) {
    auto& program = ports.program;
    program.picks.styles.filter = static_cast<std::size_t>(program.settings.style_book);
    auto style = pick(style_list, program.picks.styles, ports, opener, owner);
    // The set of the next pick too.
    if (style) program.settings.style_book = style->book == 0 ? StyleBook::aha : StyleBook::bjcp;
    return style;
}

void pick_malts(const UsePicked<MaltRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner) {
    pick_some(malt_list, ports.program.picks.malts, use, ports, opener, owner);
}

void pick_hops(const UsePicked<HopRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner) {
    pick_some(hop_list, ports.program.picks.hops, use, ports, opener, owner);
}

std::optional<YeastRecord> pick_yeast(const WindowPorts& ports, Opener opener, QWidget* owner) {
    return pick(yeast_list, ports.program.picks.yeasts, ports, opener, owner);
}

std::optional<WaterRecord> pick_water(const WindowPorts& ports, Opener opener, QWidget* owner) {
    return pick<WaterRecord>(water_list, ports.program.picks.waters, ports, opener, owner);
}

void pick_extras(const UsePicked<ExtraRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner) {
    pick_some(extra_list, ports.program.picks.extras, use, ports, opener, owner);
}

std::shared_ptr<RecordList<MaltRecord>> all_malts(const WindowPorts& ports) {
    return read_all(malt_list, ports);
}

std::shared_ptr<RecordList<HopRecord>> all_hops(const WindowPorts& ports) {
    return read_all(hop_list, ports);
}

std::shared_ptr<RecordList<YeastRecord>> all_yeasts(const WindowPorts& ports) {
    return read_all(yeast_list, ports);
}

void pick_hops_for(const std::function<void(QWidget*, const HopRecord&)>& use, const WindowPorts& ports,
                   QWidget* owner) {
    Database<HopRecord> database;
    const auto list = hop_list(source(ListSide::pick, ports), database);
    ListChoice everything;
    const auto hand_on = [&](QWidget* window) {
        use(window, *list->selected_record());
        return false;
    };
    run_pick(*list, everything, hand_on, ports, Opener::main, owner);
}

} // namespace wortlex
