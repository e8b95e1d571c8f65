#include "documents/method_check.h"

#include "records/documents/document_traits.h"

namespace wortlex {
namespace {

constexpr auto first_of_method_2 = static_cast<std::uint8_t>(EfficiencyMode::method_2);

constexpr std::string_view by_weight = "(by grain weight and sucrose potential)";
constexpr std::string_view by_maximum = "(by maximum potential of grain)";

constexpr std::string_view of_loading =
    " Note also that as the gravity numbers generated will be different, predicted IBU values will also be "
    "different. To see the author's intended targets, you must first switch the efficiency calculation type "
    "within the System Settings, Mash Section, and then reload the recipe.\n\nPlease see the help section "
    "for "
    "a detailed description of the 2 different efficiency calculations.";
constexpr std::string_view of_saving =
    "\n\nDo you want to reset the recipe using your current Efficiency Method?\n";

bool is_of_method_2(const BrewDocument& document) {
    return document.file_efficiency_mode >= first_of_method_2;
}

std::string difference(const std::string& subject, const BrewDocument& document) {
    const auto its = is_of_method_2(document) ? by_weight : by_maximum;
    const auto ours = is_of_method_2(document) ? by_maximum : by_weight;
    return subject + " was created using a different method for calculating efficiency " + std::string(its) +
           " than your current system " + std::string(ours) +
           ".\n\nPlease be aware of this difference and that the predicted gravity here may be different "
           "than "
           "what the author targeted.";
}

} // namespace

bool has_other_method(const BrewDocument& document, const Settings& settings) {
    return is_of_method_2(document) != (settings.efficiency_mode >= EfficiencyMode::method_2);
}

std::optional<std::string> method_check_on_load(const BrewDocument& document, const Settings& settings,
                                                DocumentKind kind) {
    if (!has_other_method(document, settings)) return std::nullopt;
    return difference(std::string(document_traits(kind).about_to) + "load", document) +
           std::string(of_loading) + "\n\nThe recipe was created with Method #" +
           (is_of_method_2(document) ? "2" : "1");
}

std::optional<std::string> method_check_on_pick(const BrewDocument& document, const Settings& settings) {
    if (!has_other_method(document, settings)) return std::nullopt;
    return difference("The recipe you have chosen", document) + std::string(of_loading);
}

std::optional<std::string> method_check_on_save(const BrewDocument& document, const Settings& settings,
                                                DocumentKind kind) {
    if (!has_other_method(document, settings)) return std::nullopt;
    return difference(std::string(document_traits(kind).about_to) + "save", document) +
           std::string(of_saving);
}

} // namespace wortlex
