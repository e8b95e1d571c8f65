// The six databases as they describe themselves.
#pragma once

#include "databases/catalogue.h"
#include "databases/water.h"

namespace wortlex {

/// `settings` must outlive the catalogue.
Catalogue<HopRecord> hop_catalogue(const Settings& settings, const std::string& data_folder);
Catalogue<MaltRecord> malt_catalogue(const Settings& settings, const std::string& data_folder);
Catalogue<YeastRecord> yeast_catalogue(const Settings& settings, const std::string& data_folder);
Catalogue<WaterRecord> water_catalogue(const Settings& settings, const std::string& data_folder,
                                       const WaterConverters& converters);
Catalogue<StyleRecord> style_catalogue(const Settings& settings, const std::string& data_folder,
                                       StyleBook book);
Catalogue<ExtraRecord> extra_catalogue(const Settings& settings, const std::string& data_folder);

/// What they print.
CataloguePages<HopRecord> hop_pages(const Settings& settings);
CataloguePages<MaltRecord> malt_pages(const Settings& settings);
CataloguePages<YeastRecord> yeast_pages();
CataloguePages<WaterRecord> water_pages();
CataloguePages<StyleRecord> style_pages(const Settings& settings, StyleBook book);
CataloguePages<ExtraRecord> extra_pages();

} // namespace wortlex
