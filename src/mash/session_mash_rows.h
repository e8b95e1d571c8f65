// The rows that a session adds to the form of the simple schedule.
#pragma once

#include "brewing/mash_recalculation.h"
#include "mash/simple_mash_form.h"

namespace wortlex {

/// A temperature of a schedule: whole degrees F, in the unit shown.
IntegerRow& whole_degrees_row(Rows& rows, const std::string& key, std::int32_t& degrees,
                              TemperatureUnits units);

struct InfusedCells {
    InfusedRest rest;
    Infusion& infusion;
};

void heat_row(Rows& rows, SessionMash& session);
void add_infusion_captions(std::vector<Live<std::string>>& captions, const Settings& settings);
/// Behind a rest: the temperature of the water that is infused to reach it, and how much it takes.
void infusion_cells(Rows& line, const std::string& key, const SimpleMashWork& work, const InfusedCells& cells,
                    const Settings& settings);
/// What all infusions add.
void added_rows(Rows& rows, const InfusionExtras& infusions, const Settings& settings);
void wort_rows(Rows& rows, SessionMash& session, std::function<void()> correct_gravity,
               std::function<void()> measure_runnings);

/// Quarts that fill the mash: the infusions count where the session heats by them.
float quarts_in_mash(const SimpleMashWork& work);

} // namespace wortlex
