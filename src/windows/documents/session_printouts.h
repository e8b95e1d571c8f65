// The pages that a session's windows print.
#pragma once

#include "mash/simple_mash_form.h"
#include "program/window_ports.h"
#include "reports/session_pages.h"

namespace wortlex {

/// Shows the page as the session stands.
void print_session_page(const WindowPorts& ports, SessionPrint print);

/// That of the simple schedule under work.
void print_session_mash(const WindowPorts& ports, const SimpleMashWork& work);

} // namespace wortlex
