// The tables from which the six databases are made, in the order in which the program lists them.
#pragma once

#include "records/ingredients/database_file.h"

namespace wortlex {

struct Databases {
    Database<HopRecord> hops;
    Database<MaltRecord> malts;
    Database<YeastRecord> yeasts;
    Database<WaterRecord> water;
    Database<ExtraRecord> extras;
    Database<StyleRecord> aha_styles;
    Database<StyleRecord> bjcp_styles;
};

/// Reads the tables in `folder`, which ends in a slash; throws a `SourceFault` for what does not fit a
/// record.
Databases read_databases(const std::string& folder);

} // namespace wortlex
