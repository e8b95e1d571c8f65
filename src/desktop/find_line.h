// The line by which a list is searched.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>

#include <functional>

namespace wortlex {

class ListView;

/// Ctrl+F in its window leads to it; Esc first clears it.
class FindLine : public QLineEdit {
public:
    explicit FindLine(QWidget* window);
    void describe(const QString& example, const QString& tip);
    /// How much was found, to readers.
    void tell_found(const QString& words);
    /// Letters typed in that list begin a search.
    void take_typing_in(ListView& list);

    std::function<void()> entered = [] {};                  ///< Enter
    std::function<void(QKeyEvent&)> stepped = [](auto&) {}; ///< a key that goes up or down in a list

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace wortlex
