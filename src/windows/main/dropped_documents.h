// Documents that are dropped on any window of the program.
#pragma once

#include <QDropEvent>
#include <QObject>

#include <functional>
#include <string>

namespace wortlex {

/// Takes a single document that is dragged over a window or a field in it, and hands on what is dropped.
/// While a dialog waits for its answer nothing is taken, but by the dialog itself.
class DroppedDocuments : public QObject {
public:
    DroppedDocuments(std::function<void(const std::string& path)> open, QObject* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool take(QDropEvent& event);

    std::function<void(const std::string& path)> open_;
};

} // namespace wortlex
