// The handbook: its contents, and pages of Markdown, one a topic.
#pragma once

#include "handbook/markdown.h"

#include <functional>

namespace wortlex {

/// The page that lists all others; the handbook opens there.
inline constexpr std::string_view contents_page = "contents";

/// The Markdown of a page by its name, as `hops` for the file "hops.md"; empty where there is none.
using PageSource = std::function<std::string(std::string_view page)>;

/// A line of the contents: a chapter, which has no page, or the page of a topic.
struct Topic {
    std::string title;
    std::string page;
    int level = 0; ///< 0 for chapters
};

struct Found {
    const Topic* topic;
    std::string excerpt; ///< of where the words stand, plain
};

/// The name of the page that a link of the handbook leads to; empty if it leads out of it.
std::string_view page_of(std::string_view link);

class Handbook {
public:
    explicit Handbook(PageSource source);

    const std::vector<Topic>& topics() const { return topics_; }
    /// The topic of a page; none where the contents do not name it.
    const Topic* topic(std::string_view page) const;
    std::string page(std::string_view name) const { return source_(name); }

    /// Reads all pages for a search, once; the first search does so itself, which then takes longer.
    void read_pages();
    /// Pages that hold every word, in any capitals: first where all stand by themselves, then where they
    /// begin others, then where they are parts of others.
    std::vector<Found> search(std::string_view text);
    /// What of a question is looked for, in small letters: not "how", "of", and the like, and no plurals.
    static std::vector<std::string> sought_words(std::string_view text);

    /// What a page says of the field with this caption: the words of the list item that begins with it,
    /// or with the same in another unit.
    std::string words_on(std::string_view page, std::string_view caption) const;

private:
    struct Searched {
        const Topic* topic;
        std::vector<Block> blocks;
        std::vector<std::string> texts; ///< of the blocks with their keywords, plain and in small letters
    };

    struct Hit {
        int grade = 0; ///< of the word that is found worst; 0 if one is missing
        int worth = 0;
        const Block* best = nullptr; ///< none where only headings hold the words
    };

    static Hit hit_of(const Searched& page, const std::vector<std::string>& words);

    PageSource source_;
    std::vector<Topic> topics_;
    std::vector<Searched> pages_;
};

} // namespace wortlex
