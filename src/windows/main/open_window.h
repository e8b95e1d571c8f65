// A tool's window as the frame sees it.
#pragma once

#include "desktop/tool_window.h"
#include "program/open_tools.h"

#include <QPointer>

namespace wortlex {

/// Safe after the window is gone: it then does nothing and counts as closed.
class OpenWindow : public OpenTool {
public:
    explicit OpenWindow(ToolWindow& window) : window_(&window) {}

    void activate() override {
        if (window_ != nullptr) bring_forward(*window_);
    }
    bool close() override { return window_ == nullptr || window_->close(); }
    bool show_modal_child() override { return window_ != nullptr && wortlex::show_modal_child(*window_); }
    void keep_work() override {
        if (window_ != nullptr) window_->keep_work();
    }

private:
    QPointer<ToolWindow> window_;
};

} // namespace wortlex
