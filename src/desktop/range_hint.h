// What is said about a number out of its range, while it is typed.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace wortlex {

/// A frame around a field and its range beside it, in the colours of a warning. It lies over the window, so
/// that nothing moves, and stays a moment after the field was left: by then another number may stand there.
class RangeHint : public QWidget {
public:
    explicit RangeHint(QWidget* window);
    void tell(QWidget& field, const QString& range);
    /// What was told about that field is true no more.
    void forget(const QWidget& field);
    /// That field is left.
    void leave(const QWidget& field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();
    QRect place_of_words(QRect words) const;
    int hidden_by(const QRect& place) const;

    QPointer<QWidget> field_;
    QTimer moment_;
    QString range_;
    QRect frame_, words_; ///< in the window
};

} // namespace wortlex
