#include "records/documents/brew_document.h"
#include "records/documents/session_document.h"

namespace wortlex {

HopUse new_hop_line(const HopRecord& hop, std::int32_t boil_minutes, float increment) {
    HopUse line;
    line.record = hop;
    line.age_months = 1;
    line.storage_temperature = 20.0F;
    line.alpha = hop.alpha;
    line.storage_kind = StorageKind::airtight;
    line.amount = increment;
    line.boil_time = static_cast<std::int16_t>(boil_minutes);
    return line;
}

MaltUse new_malt_line(const MaltRecord& malt, float increment) {
    MaltUse line;
    line.record = malt;
    line.amount = increment;
    return line;
}

BrewDocument new_document(const Settings& settings, ScheduleKind schedule_in_force) {
    BrewDocument document;
    document.wort_size = settings.wort_size;
    document.batch_size = settings.batch_size;
    document.simple_mash.mash_kind = MashKind::single_step;
    document.mash = ResetComplexMash(settings);
    document.mash.tun_thermal_mass = settings.tun_thermal_mass;
    document.mash_flags = static_cast<std::uint8_t>(schedule_in_force);
    document.file_efficiency_mode = static_cast<std::uint8_t>(settings.efficiency_mode);
    return document;
}

BrewDocument new_session_recipe(const Settings& settings) {
    auto document = new_document(settings, ScheduleKind::simple);
    document.wort_size = document.batch_size = 5.0F;
    return document;
}

SessionDocument new_session(const BrewDocument& document) {
    SessionDocument session;
    auto& bottling = session.bottling;
    bottling.co2_volumes = 2.3F;
    bottling.ferment_temperature = 68;
    bottling.amount.fill(document.batch_size);
    bottling.natural_carbonation = {1, 0, 0};
    bottling.liquid_added.fill(0.14F);
    bottling.carbonation_temperature.fill(42);
    return session;
}

} // namespace wortlex
