// start_bench ROUNDS PROGRAM PROGRAM: starts two programs in turn, and prints for each the median time until
// its window is mapped, with its files in the disk cache and without, and the memory it holds once it is
// idle. The display must have no other programs and no window manager on it.
#include "base/number.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace wortlex {
namespace {

using Clock = std::chrono::steady_clock;
using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;
using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;

/// Milliseconds and kilobytes, and the programs, libraries and data that lie in memory.
struct Start {
    double time = 0;
    double memory = 0;
    std::set<std::string> files = {};
};

// Listens for windows that are mapped on the screen itself.
Connection listen() {
    Connection display(xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(display.get()) != 0) throw std::runtime_error("the display does not answer");
    auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(display.get())).data;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display.get(), screen->root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(display.get());
    return display;
}

Event next_event(xcb_connection_t* display) {
    Event event(xcb_wait_for_event(display), &std::free);
    if (!event) throw std::runtime_error("the display is gone");
    return event;
}

void wait_for(xcb_connection_t* display, int kind) {
    while ((next_event(display)->response_type & 0x7f) != kind) {
    }
}

// Processor time since the start, in clock ticks: the 12th and 13th figure behind the name.
long long worked(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string line;
    std::getline(file, line);
    std::istringstream figures(line.substr(line.rfind(')') + 4));
    std::array<long long, 12> values{};
    for (auto& value : values) figures >> value;
    return values[10] + values[11];
}

void wait_until_idle(pid_t process) {
    long long before = -1;
    for (auto now = worked(process); now != before; now = worked(process)) {
        before = now;
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    }
}

double proportional_memory(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Pss:")) return leading_number(line.substr(4));
    }
    throw std::runtime_error("the memory of the program cannot be read");
}

std::set<std::string> mapped_files(pid_t process) {
    std::ifstream map("/proc/" + std::to_string(process) + "/maps");
    std::set<std::string> files;
    for (std::string line; std::getline(map, line);)
        if (const auto path = line.find('/'); path != std::string::npos) files.insert(line.substr(path));
    return files;
}

// Out of the disk cache. What another program holds as well stays, as it would on any desktop.
void forget(const std::set<std::string>& files) {
    for (const auto& file : files) {
        const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) continue; // as a file that was deleted
        posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
        close(descriptor);
    }
}

pid_t spawn(char* program) {
    pid_t process = 0;
    std::array<char*, 2> arguments = {program, nullptr};
    if (posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("a program cannot be started");
    return process;
}

Start measure(xcb_connection_t* display, char* program) {
    const auto started = Clock::now();
    const auto process = spawn(program);
    wait_for(display, XCB_MAP_NOTIFY);
    const std::chrono::duration<double, std::milli> time = Clock::now() - started;
    wait_until_idle(process);
    const auto memory = proportional_memory(process);
    auto files = mapped_files(process);
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    wait_for(display, XCB_DESTROY_NOTIFY);
    return {time.count(), memory, std::move(files)};
}

double median(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

/// One program's figures, a round each.
struct Rounds {
    std::vector<double> warm, cold, memory;
};

void add_round(xcb_connection_t* display, char* program, Rounds& rounds) {
    const auto warm = measure(display, program);
    rounds.warm.push_back(warm.time);
    rounds.memory.push_back(warm.memory);
    forget(warm.files);
    rounds.cold.push_back(measure(display, program).time);
}

void print(const char* program, const Rounds& rounds) {
    std::printf("%-40s mapped after %6.1f ms, cold %6.1f ms, %6.1f MB\n", program, median(rounds.warm),
                median(rounds.cold), median(rounds.memory) / 1024);
}

double ratio(const std::vector<double>& figures, const std::vector<double>& to) {
    return median(figures) / median(to);
}

// In turn, so that a slow spell of the machine strikes both.
void compare(int count, char* first, char* second) {
    const auto display = listen();
    measure(display.get(), first); // warms the disk cache
    measure(display.get(), second);
    Rounds firsts, seconds;
    for (int round = 0; round < count; ++round) {
        add_round(display.get(), first, firsts);
        add_round(display.get(), second, seconds);
    }
    print(first, firsts);
    print(second, seconds);
    std::printf("ratios: warm %.2f, cold %.2f, memory %.2f\n", ratio(firsts.warm, seconds.warm),
                ratio(firsts.cold, seconds.cold), ratio(firsts.memory, seconds.memory));
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    const auto rounds = count == 4 ? wortlex::parse_whole(arguments[1]) : std::nullopt;
    if (!rounds || *rounds < 1) return 2;
    try {
        wortlex::compare(static_cast<int>(*rounds), arguments[2], arguments[3]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "start_bench: %s\n", fault.what());
        return 1;
    }
    return 0;
}
