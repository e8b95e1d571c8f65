// The ingredient databases as the rest of the program opens them.
#pragma once

#include "databases/windows/list_window.h"
#include "frame/program.h"

namespace wortlex {

/// Where the lists take their questions and files.
struct DatabasePorts {
    Program& program;
    Files& files;
    Prompts& prompts;
};

/// Each opens the list that keeps a database, until it is closed.
void keep_hops(const DatabasePorts& ports, QWidget* owner);

/// Picks a hop for a document; nothing when the list is left.
std::optional<HopRecord> pick_hop(const DatabasePorts& ports, Opener opener, QWidget* owner);
/// Stays open and hands each picked hop on, as the calculators want it.
void pick_hops_for(const DatabasePorts& ports, const std::function<void(QWidget*, const HopRecord&)>& use,
                   QWidget* owner);

} // namespace wortlex
