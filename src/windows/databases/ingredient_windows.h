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
std::optional<MaltRecord> pick_malt(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<HopRecord> pick_hop(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<YeastRecord> pick_yeast(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<WaterRecord> pick_water(const WindowPorts& ports, Opener opener, QWidget* owner);
std::optional<ExtraRecord> pick_extra(const WindowPorts& ports, Opener opener, QWidget* owner);

/// The hop list with all hops, which stays open and hands each picked one to a calculator.
void pick_hops_for(const std::function<void(QWidget*, const HopRecord&)>& use, const WindowPorts& ports,
                   QWidget* owner);

} // namespace wortlex
