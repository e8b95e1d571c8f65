// What tells the two kinds of document apart, wherever one is opened, saved, kept, named or exported.
#pragma once

#include "records/documents/document_files.h"
#include "records/documents/document_image.h"

namespace wortlex {

struct DocumentTraits {
    FolderKind folder;
    std::string_view extension; ///< without its dot
    std::string_view filter;    ///< of file dialogs
    std::string_view word;
    /// What stands for a document that has neither file nor title.
    std::string_view nameless;
    /// The question before it is left unsaved.
    std::string_view modified;
    /// The question on opening one while a document of the other kind is open.
    std::string_view other_is_open;
    /// Up to "load" or "save", where its efficiency method is another one.
    std::string_view about_to;
    /// What a printed one without a title is called.
    std::string_view printed_name;
    /// The question before the selection of its report becomes the default.
    std::string_view save_selection;
    /// The first line of a file of unsaved work.
    std::string_view work_signature;
    LoadResult (*read)(ByteView file, DocumentImage& image, const Settings& settings);
    Bytes (*encode)(const DocumentImage& image);
};

const DocumentTraits& document_traits(DocumentKind kind);

/// The kind of document that a file name stands for by its ending, or nothing.
std::optional<DocumentKind> document_kind(std::string_view path);

/// The only ones there are, told of a file that is neither; to follow its name.
inline constexpr std::string_view is_no_document = "is neither a recipe (.rec) nor a brewing session (.brw)";

/// Reads a file of that kind into `image`, as `load_recipe` and `load_session` do.
LoadResult read_document(DocumentKind kind, ByteView file, DocumentImage& image, const Settings& settings);

/// The bytes as its file would have them.
Bytes document_bytes(const DocumentImage& image);

/// The same as a save writes them: what a load would put in stands in the file at once, so that a file that
/// is read and saved stays as it was.
Bytes saved_bytes(const DocumentImage& image);

/// Replaces the file atomically; a failure is told through `prompts` and changes nothing.
bool save_document(const std::string& path, const DocumentImage& image, Prompts& prompts);

} // namespace wortlex
