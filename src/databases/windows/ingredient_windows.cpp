#include "databases/windows/ingredient_windows.h"

#include "databases/hops.h"
#include "databases/store.h"

namespace wortlex {
namespace {

ListPorts list_ports(const DatabasePorts& ports) {
    return {{ports.program.tool_positions, ports.program.settings}, ports.files, ports.prompts};
}

// Runs the window that keeps a database.
template <class List>
void keep(List& list, std::string_view import_extension, const DatabasePorts& ports, QWidget* owner) {
    list.open(ports.prompts);
    ListWindow window(list, import_extension, list_ports(ports), Opener::main, nullptr, owner);
    window.exec();
}

// Runs a pick list from the choice of the last pick. A pick keeps the new choice, leaving keeps the old one.
template <class List>
bool run_pick(List& list, ListChoice& choice, const DatabasePorts& ports, Opener opener,
              const std::function<bool(QWidget*, std::size_t entry)>& picked, QWidget* owner) {
    list.filter = static_cast<std::int32_t>(choice.filter);
    list.only_in_stock = choice.only_in_stock;
    list.open(ports.prompts);
    ListWindow* shown = nullptr;
    ListWindow window(
        list, {}, list_ports(ports), opener, [&] { return picked(shown, *list.selected_entry()); }, owner);
    shown = &window;
    const bool accepted = window.exec() == QDialog::Accepted;
    if (accepted) choice = {static_cast<std::size_t>(list.filter), list.only_in_stock};
    return accepted;
}

// Picks one entry.
template <class Record, class List>
std::optional<Record> pick_one(List& list, ListChoice& choice, const DatabasePorts& ports, Opener opener,
                               QWidget* owner) {
    std::optional<Record> chosen;
    const auto take = [&](QWidget*, std::size_t entry) {
        chosen = list.entry(entry);
        return true;
    };
    return run_pick(list, choice, ports, opener, take, owner) ? chosen : std::nullopt;
}

} // namespace

void keep_hops(const DatabasePorts& ports, QWidget* owner) {
    const auto& program = ports.program;
    Database<HopRecord> database;
    Store<HopRecord> list(hop_catalogue(program.settings, program.data_folder), ListSide::maintenance,
                          program.data_folder, database);
    keep(list, "him", ports, owner);
}

std::optional<HopRecord> pick_hop(const DatabasePorts& ports, Opener opener, QWidget* owner) {
    auto& program = ports.program;
    Database<HopRecord> database;
    Store<HopRecord> list(hop_catalogue(program.settings, program.data_folder), ListSide::pick,
                          program.data_folder, database);
    return pick_one<HopRecord>(list, program.picks.hops, ports, opener, owner);
}

void pick_hops_for(const DatabasePorts& ports, const std::function<void(QWidget*, const HopRecord&)>& use,
                   QWidget* owner) {
    const auto& program = ports.program;
    Database<HopRecord> database;
    Store<HopRecord> list(hop_catalogue(program.settings, program.data_folder), ListSide::pick,
                          program.data_folder, database);
    ListChoice everything;
    run_pick(
        list, everything, ports, Opener::main,
        [&](QWidget* window, std::size_t entry) {
            use(window, list.entry(entry));
            return false;
        },
        owner);
}

} // namespace wortlex
