// The dialogs of a document's lines: each works on a copy of one line and hands it back changed.
#pragma once

#include "desktop/window_table.h"
#include "program/program.h"
#include "program/window_ports.h"

#include <QWidget>

#include <optional>

namespace wortlex {

/// Each answers the changed copy after OK, and nothing after Cancel. The hop dialog shows the bitterness that
/// the line would have in the document.
std::optional<MaltUse> edit_malt_line(const WindowPorts& ports, const MaltUse& line, Opener opener,
                                      QWidget* owner);
std::optional<HopUse> edit_hop_line(const WindowPorts& ports, const OpenDocument& open, const HopUse& line,
                                    Opener opener, QWidget* owner);
std::optional<ExtraUse> edit_extra_line(const WindowPorts& ports, const ExtraUse& line, Opener opener,
                                        QWidget* owner);

/// The alpha that is left of a hop after its time in store, as the alpha of the line, with how it was stored.
/// Its bitterness is as it was.
std::optional<HopUse> lose_hop_alpha(const WindowPorts& ports, const HopUse& line, Opener opener,
                                     QWidget* owner);

/// What one malt line of the document gives to gravity and colour. The line must be there, and the
/// document's figures up to date.
void show_malt_contribution(const WindowPorts& ports, const OpenDocument& open, std::size_t line,
                            Opener opener, QWidget* owner);

/// The kettle of the document before its boil.
void show_pre_boil(const WindowPorts& ports, const OpenDocument& open, QWidget* owner);

} // namespace wortlex
