// The ends that nobody asks the program about: of the desktop session, and by a signal.
#pragma once

#include "base/open_file.h"

#include <QObject>

#include <functional>

namespace wortlex {

/// While it lives, `keep` is called before the desktop ends the session, and before the program ends because
/// it is told to terminate, interrupted or hung up on.
class EndOfSession : public QObject {
public:
    explicit EndOfSession(const std::function<void()>& keep);

private:
    void follow_signals(const std::function<void()>& keep);

    OpenFile signals_{-1}; ///< where the handler's bytes arrive
};

} // namespace wortlex
