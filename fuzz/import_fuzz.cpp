// A transfer file for one of the six databases: the first byte says which, the next three answer the
// questions, the rest is the file. It is imported twice, so that the second time every entry is there
// already.
#include "base/ports/quiet_prompts.h"
#include "databases/catalogues.h"
#include "databases/store.h"
#include "fuzz_input.h"

using namespace wortlex;

namespace {

constexpr std::size_t head_size = 4;

class FuzzedPrompts : public QuietPrompts {
public:
    explicit FuzzedPrompts(ByteView answers) : answers_(answers) {}
    ReplaceAnswer ask_replace(std::string_view existing, std::string_view) override {
        promise(!existing.empty());
        const auto answer = answers_[asked_++ % answers_.size()];
        return static_cast<ReplaceAnswer>(std::to_integer<int>(answer) % 4);
    }

private:
    ByteView answers_;
    std::size_t asked_ = 0;
};

template <class Record>
Database<Record> in_order(Database<Record> database, const Catalogue<Record>& catalogue) {
    sort_canonically<Record>(std::span(database.slots).first(static_cast<std::size_t>(database.count)),
                             catalogue);
    return database;
}

template <class Record>
void use(Store<Record>& list, QuietPrompts& prompts) {
    for (std::size_t column = 0; column < list.heads().size(); ++column) {
        list.click(column);
        for (std::size_t row = 0; row < list.shown_count(); ++row) list.cell(row, column);
    }
    for (std::size_t chosen = list.filter_labels().size(); chosen-- > 0;)
        list.choose_filter(static_cast<std::int32_t>(chosen), prompts);
    promise(list.selected_record().has_value() == (list.shown_count() > 0));
}

template <class Record>
void check(Catalogue<Record> catalogue, ByteView input) {
    FuzzedPrompts prompts(input.subspan(1, head_size - 1));
    Database<Record> saved;
    catalogue.load = [](Database<Record>&, Prompts&) { return DatabaseState::loaded; };
    catalogue.save = [&](const Database<Record>& database) {
        saved = database;
        return true;
    };
    Database<Record> database;
    Settings settings;
    Store<Record> list(catalogue, {ListSide::maintenance, settings, "no such folder/"}, database);
    list.open(prompts);
    for (int time = 0; time < 2; ++time) list.import_bytes(input.subspan(head_size), "input", prompts);
    use(list, prompts);
    list.save(prompts);

    Database<Record> again;
    const auto file = database_bytes(saved, layout_of(Record{}));
    promise(read_database(file, layout_of(Record{}), again) == DatabaseState::loaded);
    promise(again == saved && in_order(again, catalogue) == saved);
    promise(holds_the_same(in_order(database, catalogue), saved));
    promise(again.count <= import_limit);
    for (const auto& entry : again.entries()) promise(looks_like_a_record(entry));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < head_size) return 0;
    const auto input = fuzz_bytes(data, size);
    const auto program = default_program();
    const auto& settings = program.settings;
    switch (data[0] % 6) {
    case 0:
        check(style_catalogue(settings, "", data[1] % 2 == 0 ? StyleBook::aha : StyleBook::bjcp), input);
        break;
    case 1:
        check(malt_catalogue(settings, ""), input);
        break;
    case 2:
        check(hop_catalogue(settings, ""), input);
        break;
    case 3:
        check(yeast_catalogue(settings, ""), input);
        break;
    case 4:
        check(water_catalogue(settings, "", {}), input);
        break;
    default:
        check(extra_catalogue(settings, ""), input);
    }
    return 0;
}
