// Help: F1 and every Help button open the handbook at the page of their window.
#pragma once

#include "desktop/help_keys.h"
#include "forms/places.h"
#include "handbook/handbook.h"
#include "page/page.h"

#include <QPointer>

namespace wortlex {

class HandbookWindow;

/// The handbook that the program was built with.
Handbook shipped_handbook();

/// Of the whole program. The desk must outlive it.
class Help {
public:
    Help(QWidget& main, const Places& places, PageDesk& pages);
    Help(const Help&) = delete;
    Help& operator=(const Help&) = delete;
    ~Help();

    /// Shows a page in the one window of the handbook; the contents where there is no such page.
    void open(std::string_view page);

private:
    QWidget& main_;
    Places places_;
    PageDesk& pages_;
    Handbook handbook_;
    HelpKeys keys_;
    QPointer<HandbookWindow> window_;
};

} // namespace wortlex
