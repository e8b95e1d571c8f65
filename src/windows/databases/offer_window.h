// The window that offers what a new version of the program brings along for the databases.
#pragma once

#include "databases/shipped.h"
#include "desktop/form_widgets.h"
#include "desktop/placement.h"
#include "program/window_ports.h"

#include <QDialog>

namespace wortlex {

/// Accepted with Add and Don't Add, which are answers. Later and Esc give none.
class OfferWindow : public QDialog {
public:
    OfferWindow(ShippedOffer& offer, const Places& places, QWidget* owner);
    /// Hidden before its form goes.
    ~OfferWindow() override { hide(); }
    void setVisible(bool visible) override;

private:
    void fill_form();
    void decline();
    void lay_out_rows();

    ShippedOffer& offer_;
    Form form_;
    std::unique_ptr<FormWidgets> widgets_;
    WindowPlace& place_;
};

/// Offers what is new in the shipped data, if there is anything.
void offer_new_entries(const WindowPorts& ports, const std::string& shipped_folder, QWidget* owner);

} // namespace wortlex
