// A desk of paper for tests: reports are recorded at once, and their pages can be read.
#pragma once

#include "page/page.h"
#include "support/recording_surface.h"

#include <stdexcept>

namespace wortlex {

/// Paper of 640 by 1000 dots, so that a dot is a logical unit, in letters of 8 by 10 dots.
inline Paper plain_paper() {
    return {.sheet = {660, 1100}, .area = {640, 1000}, .top_offset = 50};
}

/// What is drawn on a page, one line a call.
inline std::vector<std::string> calls_on(const PageJob& job, std::size_t page) {
    RecordingSurface surface;
    job.draw(page, surface);
    return surface.lines;
}

/// Only the lines of text: "y text" where the text begins at the margin, "y @x text" elsewhere.
inline std::vector<std::string> texts_on(const PageJob& job, std::size_t page) {
    struct Reader : RecordingSurface {
        std::vector<std::string> texts;
        void text(Point at, std::string_view text) override {
            texts.push_back(std::to_string(at.y) + " @" + std::to_string(at.x) + ' ' + std::string(text));
        }
        void tabbed_text(Point at, std::string_view text, std::span<const int>) override {
            texts.push_back(std::to_string(at.y) + ' ' + std::string(text.substr(1)));
        }
    };
    Reader reader;
    job.draw(page, reader);
    return reader.texts;
}

struct RecordingPageDesk : PageDesk {
    std::vector<PageJob> jobs;
    std::vector<float> scales;
    std::vector<std::string> file_names; ///< proposed
    Extent character{8, 10};

    void show(const PrintRequest& request) override {
        RecordingSurface measure;
        measure.character = character;
        auto job = record_report(request, plain_paper(), measure);
        if (!job) throw std::logic_error("nothing can be printed on plain paper");
        jobs.push_back(std::move(*job));
        scales.push_back(request.printer_scale);
        file_names.push_back(request.file_name);
    }
};

/// The lines of a page, without how far down they are.
inline std::vector<std::string> lines_on(const PageJob& job, std::size_t page) {
    auto lines = texts_on(job, page);
    for (auto& line : lines) line.erase(0, line.find(' ') + 1);
    return lines;
}

/// The lines of the first page.
inline std::vector<std::string> printed_lines(const PrintRequest& request, Extent character = {8, 10}) {
    RecordingPageDesk desk;
    desk.character = character;
    desk.show(request);
    return lines_on(desk.jobs.front(), 0);
}

} // namespace wortlex
