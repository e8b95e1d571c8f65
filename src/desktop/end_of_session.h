// The ends that nobody asks the program about: of the desktop session, and by a signal.
#pragma once

#include "base/open_file.h"

#include <QObject>

#include <functional>

namespace wortlex {

/// While it lives, `keep` is called before the desktop ends the session, and before the program ends because
/// it is told to terminate, interrupted or hung up on; also when the display dies, on which the toolkit exits
/// wherever it is. What `keep` does then must not need a display.
class EndOfSession : public QObject {
public:
    explicit EndOfSession(std::function<void()> keep);
    ~EndOfSession() override;
    EndOfSession(const EndOfSession&) = delete;
    EndOfSession& operator=(const EndOfSession&) = delete;
    EndOfSession(EndOfSession&&) = delete;
    EndOfSession& operator=(EndOfSession&&) = delete;

private:
    void follow_signals();

    std::function<void()> keep_;
    OpenFile signals_{-1}; ///< where the handler's bytes arrive
};

} // namespace wortlex
