#include "desktop/early_start.h"

#include <QDBusConnection>
#include <QFontDatabase>

#ifdef WORTLEX_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace wortlex {

std::future<void> read_fonts_early() {
    return std::async(std::launch::async, [] {
#ifdef WORTLEX_FONTCONFIG
        FcInit();
#endif
    });
}

std::future<void> take_fonts_early(const std::future<void>& fonts) {
    return std::async(std::launch::async, [&fonts] {
        fonts.wait();
        QFontDatabase::families();
    });
}

std::future<void> open_session_bus_early() {
    return std::async(std::launch::async, [] { QDBusConnection::sessionBus(); });
}

} // namespace wortlex
