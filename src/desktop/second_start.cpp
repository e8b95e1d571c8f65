#include "desktop/second_start.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t longest_path = 65536;

// In the user's runtime folder, by the numbers of the brewery folder: its own path may be longer than an
// address takes, and reach it by other names.
std::string meeting_place(const std::string& folder) {
    struct stat status = {};
    if (::stat(folder.c_str(), &status) != 0) return {};
    const auto runtime =
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)).toStdString();
    return runtime + "/wortlex-" + std::to_string(status.st_dev) + "-" + std::to_string(status.st_ino);
}

// The system's two kinds of address, one behind the other's pointer.
struct Address {
    sockaddr_un unix_domain = {};

    explicit Address(const std::string& place) {
        unix_domain.sun_family = AF_UNIX;
        std::copy(place.begin(), place.end(), std::begin(unix_domain.sun_path));
    }
    static bool fits(const std::string& place) {
        return !place.empty() && place.size() < sizeof(sockaddr_un::sun_path);
    }
    const sockaddr* get() const {
        return static_cast<const sockaddr*>(static_cast<const void*>(&unix_domain));
    }
};

OpenFile new_socket() {
    return OpenFile(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

// A partner that hangs does not make us hang.
void limit_patience(const OpenFile& socket, int seconds) {
    const timeval patience{.tv_sec = seconds, .tv_usec = 0};
    for (const int direction : {SO_RCVTIMEO, SO_SNDTIMEO})
        ::setsockopt(socket.get(), SOL_SOCKET, direction, &patience, sizeof patience);
}

OpenFile listen_at(const std::string& place) {
    if (!Address::fits(place)) return OpenFile(-1);
    ::unlink(place.c_str()); // of a program that was killed: the folder is ours
    auto socket = new_socket();
    const bool listens = ::bind(socket.get(), Address(place).get(), sizeof(sockaddr_un)) == 0 &&
                         ::fcntl(socket.get(), F_SETFL, O_NONBLOCK) == 0 && ::listen(socket.get(), 8) == 0;
    if (!listens) socket.close();
    return socket;
}

// The first program may itself be starting just now, as when two files are opened at once.
OpenFile connected_to(const std::string& place) {
    const QDeadlineTimer patience(std::chrono::seconds(2));
    for (;;) {
        auto socket = new_socket();
        if (::connect(socket.get(), Address(place).get(), sizeof(sockaddr_un)) == 0) return socket;
        if (patience.hasExpired()) return OpenFile(-1);
        QThread::msleep(50);
    }
}

bool send_all(const OpenFile& socket, std::string_view text) {
    while (!text.empty()) {
        const auto sent = ::send(socket.get(), text.data(), text.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

// All until the other side has said it; nothing if it breaks off, or is no second start of ours.
std::optional<std::string> receive_all(const OpenFile& socket) {
    std::string text;
    std::array<char, 4096> part{};
    while (text.size() <= longest_path) {
        const auto count = ::recv(socket.get(), part.data(), part.size(), 0);
        if (count == 0) return text;
        if (count < 0) break;
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

} // namespace

bool hand_over(const std::string& folder, const std::string& path) {
    const auto place = meeting_place(folder);
    if (!Address::fits(place)) return false;
    const auto socket = connected_to(place);
    limit_patience(socket, 5);
    char answer = 0;
    return send_all(socket, path) && ::shutdown(socket.get(), SHUT_WR) == 0 &&
           ::recv(socket.get(), &answer, 1, 0) == 1;
}

SecondStarts::SecondStarts(const std::string& folder, Receive receive)
    : receive_(std::move(receive)), place_(meeting_place(folder)), socket_(listen_at(place_)) {
    if (!socket_.is_open()) return;
    auto* const notifier = new QSocketNotifier(socket_.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { take_next(); });
}

SecondStarts::~SecondStarts() {
    if (socket_.is_open()) ::unlink(place_.c_str());
}

// Answers first: what the file brings with it may be a question.
void SecondStarts::take_next() {
    const OpenFile other(::accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (!other.is_open()) return;
    limit_patience(other, 1);
    const auto path = receive_all(other);
    if (!path || !send_all(other, "!")) return;
    QMetaObject::invokeMethod(
        this, [this, path = *path] { receive_(path); }, Qt::QueuedConnection);
}

} // namespace wortlex
