// What a change takes until it is seen.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <deque>
#include <vector>

namespace wortlex {

/// Notes that a widget has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        is_painted_ = is_painted_ || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    /// From here on.
    void start() { is_painted_ = false; }
    /// False if nothing is painted within a second.
    bool wait() const {
        const QDeadlineTimer limit(1000);
        while (!is_painted_ && !limit.hasExpired()) QApplication::processEvents();
        return is_painted_;
    }

private:
    bool is_painted_ = false;
};

/// Measures `change` until all of `watched` are painted anew; `prepare` is not counted.
template <class Prepare, class Change>
void measure_painting(benchmark::State& state, const std::vector<QWidget*>& watched, Prepare prepare,
                      Change change) {
    std::deque<PaintWatch> watches;
    for (auto* const each : watched) watches.emplace_back(*each);
    for (auto _ : state) {
        state.PauseTiming();
        prepare();
        QApplication::processEvents();
        for (auto& watch : watches) watch.start();
        state.ResumeTiming();
        change();
        for (const auto& watch : watches)
            if (!watch.wait()) return state.SkipWithError("nothing was painted");
    }
}

inline void press_digit(QWidget& field, int digit) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_0 + digit, Qt::NoModifier, QString::number(digit));
        QApplication::sendEvent(&field, &event);
    }
}

/// Digits from `last` down to `first`, typed one after another over the text of `field`.
template <class Field>
void measure_digits(benchmark::State& state, Field& field, const std::vector<QWidget*>& watched,
                    int first = 1, int last = 9) {
    int digit = first;
    measure_painting(
        state, watched, [&] { field.selectAll(); },
        [&] {
            digit = digit == first ? last : digit - 1;
            press_digit(field, digit);
        });
}

/// Measures what is registered, without a screen.
class Measurements {
public:
    Measurements(int& count, char** arguments)
        : application_((qputenv("QT_QPA_PLATFORM", "offscreen"), count), arguments) {
        benchmark::Initialize(&count, arguments);
    }
    int run() {
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }

private:
    QApplication application_;
};

} // namespace wortlex
