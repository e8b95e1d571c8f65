// The colour of the document, large.
#pragma once

#include "calculators/color_swatch.h"
#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "program/program.h"

namespace wortlex {

/// Open once at most: who opens it keeps it, until `closed` is called. It stays above `origin`.
class ColorSwatchWindow : public ToolWindow {
public:
    ColorSwatchWindow(Program& program, Opener opener, QWidget* origin);

protected:
    /// The alpha is that of the settings again.
    void follow(Change change) override;

private:
    void lay_out_rows();

    const float& srm_;
    ColorSwatch swatch_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
