// The arrangement of a session's window.
#pragma once

#include "desktop/form_widgets.h"
#include "documents/forms/session_form.h"

#include <QGroupBox>

namespace wortlex {

class SessionPanel : public QWidget {
public:
    /// The subject must outlive the panel.
    SessionPanel(const SessionSubject& subject, const Places& places, QWidget* parent);

    const FormWidgets& widgets() const { return widgets_; }

private:
    /// The part with scroll bars, as wide as there is room for it beside the pages.
    QWidget* beside(const QWidget& pages, QLayout* part);
    /// A frame with the heading of the form's group.
    QGroupBox* box(const char* key);
    QWidget* day_part();
    QWidget* recipe_part();
    QWidget* style_part();
    QLayout* figure_part();
    QWidget* aim_part();
    QWidget* measured_part();
    QWidget* page_part();

    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
