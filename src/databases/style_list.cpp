#include "databases/catalogues.h"
#include "databases/store.h"
#include "databases/styles.h"

namespace wortlex {
namespace {

constexpr std::string_view nothing_changed = "No changes have been made in the Styles Database!";

std::string switch_question(StyleBook book) {
    const auto name = style_book_name(book);
    return "You have made changes to the Style Guidlines Database!\nThese guidlines adhere to " + name +
           " guidlines and changing them may affect validity.\nAre you sure you want to save the changes?";
}

std::string save_question(StyleBook book) {
    const std::string name = book == StyleBook::aha ? "the pre-2000 AHA" : "BJCP";
    return "You have made changes to the Style Guidelines Database!\nThese guidelines adhere to " + name +
           " guidelines and changing them may affect validity.\nAre you sure you want to save the changes?";
}

class StyleStore : public Store<StyleRecord> {
public:
    StyleStore(const ListSource& source, Database<StyleRecord>& database)
        : Store(style_catalogue(source.settings, source.data_folder, source.settings.style_book), source,
                database) {
        take(source.settings.style_book);
    }

    /// With the set that `filter` names.
    void open(Prompts& prompts) override {
        take(static_cast<StyleBook>(filter));
        Store::open(prompts);
    }
    void choose_filter(std::int32_t chosen, Prompts& prompts) override;
    void save(Prompts& prompts) override;
    std::optional<StyleRecord> selected_record() const override;

private:
    void take(StyleBook book);

    StyleBook book_{};
};

// A damaged setting counts as the second set.
void StyleStore::take(StyleBook book) {
    book_ = book == StyleBook::aha ? book : StyleBook::bjcp;
    filter = static_cast<std::int32_t>(book_);
    auto& settings = source().settings;
    catalogue_ = style_catalogue(settings, source().data_folder, book_);
    if (side() == ListSide::maintenance) settings.style_book = book_;
}

void StyleStore::choose_filter(std::int32_t chosen, Prompts& prompts) {
    const auto book = static_cast<StyleBook>(chosen);
    if (book == book_) return;
    if (side() == ListSide::maintenance && is_changed()) {
        const auto question = switch_question(book_);
        const auto answer =
            prompts.ask_yes_no_or_stay({.text = question, .icon = Icon::warning, .safe = Answer::yes});
        if (answer == Answer::cancel || (answer == Answer::yes && !write(prompts))) return;
    }
    take(book);
    reload(prompts);
    show_again();
}

void StyleStore::save(Prompts& prompts) {
    const auto question = save_question(book_);
    if (!is_changed())
        prompts.tell({.text = nothing_changed, .icon = Icon::information});
    else if (prompts.ask_yes_no({.text = question, .icon = Icon::warning, .safe = Answer::yes}) ==
             Answer::yes)
        write(prompts);
    show_again();
}

std::optional<StyleRecord> StyleStore::selected_record() const {
    auto style = Store::selected_record();
    if (style) style->book = book_ == StyleBook::aha ? 0 : 1;
    return style;
}

} // namespace

std::unique_ptr<RecordList<StyleRecord>> style_list(const ListSource& source, Database<StyleRecord>& styles) {
    return std::make_unique<StyleStore>(source, styles);
}

} // namespace wortlex
