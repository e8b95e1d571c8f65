// The pictures of the main screen and the about box, drawn from their vector sources.
#pragma once

#include <QImage>
#include <QString>

#include <string_view>

namespace wortlex {

/// A main-screen picture drawn at `scale` device pixels a unit; null if there is no such source.
/// `sources` holds plates/, icons/, backgrounds/ and about/ and may be a Qt resource path; `file` is the
/// name in the art folder without its ending: an icon with the suffix of its metal ("cb01", "cb01_2"), a
/// background ("KVBack3") or "kettle". The picture is opaque.
QImage draw_artwork(const QString& sources, std::string_view file, double scale);

} // namespace wortlex
