// The ingredient databases as the rest of the program opens them.
#pragma once

#include "program/program.h"
#include "program/window_ports.h"
#include "windows/databases/list_window.h"

namespace wortlex {

/// Each opens the list that keeps a database, until it is closed.
void keep_styles(const WindowPorts& ports, QWidget* owner);
void keep_malts(const WindowPorts& ports, QWidget* owner);
void keep_hops(const WindowPorts& ports, QWidget* owner);
void keep_yeasts(const WindowPorts& ports, QWidget* owner);
void keep_waters(const WindowPorts& ports, QWidget* owner);
void keep_extras(const WindowPorts& ports, QWidget* owner);

/// Each picks an entry for a document; nothing when the list is left. A picked style bears its book.
std::optional<StyleRecord> pick_style(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<YeastRecord> pick_yeast(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<WaterRecord> pick_water(const WindowPorts& ports, Opener opener, QWidget* owner);

/// Each hands on what is picked, one entry or, as long as the user leaves the list open, more.
template <class Record>
using UsePicked = std::function<void(const Record& picked)>;
void pick_malts(const UsePicked<MaltRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner);
void pick_hops(const UsePicked<HopRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner);
void pick_extras(const UsePicked<ExtraRecord>& use, const WindowPorts& ports, Opener opener, QWidget* owner);

/// All entries of a database, to be found in. What is wrong with its file is not told: it holds what can be
/// read.
std::shared_ptr<RecordList<MaltRecord>> all_malts(const WindowPorts& ports);
std::shared_ptr<RecordList<HopRecord>> all_hops(const WindowPorts& ports);
std::shared_ptr<RecordList<YeastRecord>> all_yeasts(const WindowPorts& ports);

/// The hop list with all hops, which stays open and hands each picked one to a calculator.
void pick_hops_for(const std::function<void(QWidget*, const HopRecord&)>& use, const WindowPorts& ports,
                   QWidget* owner);

} // namespace wortlex
