#include "desktop/end_of_session.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <utility>

namespace wortlex {
namespace {

// A handler reaches nothing but what is global; open until the process ends.
int told_to_end = -1; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

// The same holds at exit; nothing once the program ends as it was asked to.
const std::function<void()>* kept_at_exit = // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    nullptr;

extern "C" void keep_at_exit() {
    if (const auto* const keep = std::exchange(kept_at_exit, nullptr)) (*keep)();
}

extern "C" void note_signal(int /*signal*/) {
    const int before = errno;
    [[maybe_unused]] const auto written = ::write(told_to_end, "", 1);
    errno = before;
}

// What whoever started the program had it ignore stays ignored.
void catch_signal(int signal) {
    struct sigaction action = {};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = note_signal;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

EndOfSession::EndOfSession(std::function<void()> keep) : keep_(std::move(keep)) {
    for (const auto request : {&QGuiApplication::commitDataRequest, &QGuiApplication::saveStateRequest})
        connect(qGuiApp, request, this, keep_, Qt::DirectConnection);
    follow_signals();
    kept_at_exit = &keep_;
    std::atexit(keep_at_exit);
}

EndOfSession::~EndOfSession() {
    kept_at_exit = nullptr;
}

void EndOfSession::follow_signals() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    signals_ = OpenFile(ends[0]);
    told_to_end = ends[1];
    auto* const notifier = new QSocketNotifier(signals_.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        keep_();
        QCoreApplication::exit(); // not quit, which would ask the windows
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) catch_signal(signal);
}

} // namespace wortlex
