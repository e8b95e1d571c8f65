// F1 in any window asks for its page of the handbook, Shift+F1 for what it says of the field in use.
#pragma once

#include <QObject>
#include <QWidget>

#include <functional>

namespace wortlex {

/// Names the page that tells of a window; windows and dialogs within it that name none have the same.
void set_help_page(QWidget& window, std::string_view page);

/// As if F1 were pressed there.
void ask_for_help(QWidget& window);

/// Who answers. The words on a field are empty where the page says nothing of it.
struct HelpDesk {
    std::function<void(std::string_view page)> open_page;
    std::function<std::string(std::string_view page, std::string_view caption)> words_on;
};

/// Hears the keys of the whole program as long as it lives.
class HelpKeys : public QObject {
public:
    explicit HelpKeys(HelpDesk desk);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell_of_field(QWidget& field, const std::string& page) const;

    HelpDesk desk_;
};

} // namespace wortlex
