// The way to a printed or exported report: its options, and what a competition asks besides.
#pragma once

#include "program/window_ports.h"
#include "reports/catalogue.h"

class QWidget;

namespace wortlex {

/// Asks what of the live document is to be put out, or of a session's recipe alone, and puts it out. The
/// lists show what `view` does.
void print_or_export(const WindowPorts& ports, const RecipeView& view, QWidget* owner,
                     ReportPart part = ReportPart::whole);

} // namespace wortlex
