// The ingredient databases as the rest of the program opens them.
#pragma once

#include "databases/windows/list_window.h"
#include "frame/program.h"

namespace wortlex {

/// Where the lists take their data, questions and files.
struct DatabasePorts {
    Program& program;
    Files& files;
    Prompts& prompts;
};

/// Each opens the list that keeps a database, until it is closed.
void keep_styles(const DatabasePorts& ports, QWidget* owner);
void keep_malts(const DatabasePorts& ports, QWidget* owner);
void keep_hops(const DatabasePorts& ports, QWidget* owner);
void keep_yeasts(const DatabasePorts& ports, QWidget* owner);
void keep_waters(const DatabasePorts& ports, QWidget* owner);
void keep_extras(const DatabasePorts& ports, QWidget* owner);

/// Each picks an entry for a document; nothing when the list is left. A picked style bears its book.
std::optional<StyleRecord> pick_style(const DatabasePorts& ports, Opener opener, QWidget* owner);
std::optional<MaltRecord> pick_malt(const DatabasePorts& ports, Opener opener, QWidget* owner);
std::optional<HopRecord> pick_hop(const DatabasePorts& ports, Opener opener, QWidget* owner);
std::optional<YeastRecord> pick_yeast(const DatabasePorts& ports, Opener opener, QWidget* owner);
std::optional<WaterRecord> pick_water(const DatabasePorts& ports, Opener opener, QWidget* owner);
std::optional<ExtraRecord> pick_extra(const DatabasePorts& ports, Opener opener, QWidget* owner);

/// The hop list with all hops, which stays open and hands each picked one to a calculator.
void pick_hops_for(const std::function<void(QWidget*, const HopRecord&)>& use, const DatabasePorts& ports,
                   QWidget* owner);

} // namespace wortlex
