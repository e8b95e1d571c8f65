#include "windows/help/handbook_window.h"

#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "desktop/qt_text.h"
#include "desktop/read_aloud.h"
#include "handbook/handbook_printout.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextCursor>
#include <QTextTable>
#include <QTimer>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr int page_role = Qt::UserRole; // of an entry: the page that it opens
constexpr int first_width_letters = 80, narrow_letters = 110, contents_letters = 40;

QUrl url_of(std::string_view page) {
    return {QStringLiteral("qrc:/help/%1.md").arg(string_of(page))};
}

std::string page_at(const QUrl& url) {
    const auto file = url.fileName().toStdString();
    return std::string(page_of(file));
}

// As the toolkit reads tables, they stand in heavy frames without room around their words.
void dress_tables(const QTextFrame& frame, int room) {
    for (auto* const child : frame.childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(child);
        if (table == nullptr) continue;
        auto format = table->format();
        format.setCellPadding(room / 4.0);
        format.setCellSpacing(0);
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderBrush(Qt::gray);
        format.setTopMargin(room / 2.0);
        format.setBottomMargin(room);
        table->setFormat(format);
    }
}

// Headings stand off from what is above them; formulae and examples are set in, and are wrapped where they
// are wider than the page.
void dress_block(const QTextBlock& block, int room, const QBrush& ground) {
    auto format = block.blockFormat();
    const bool is_fenced = format.hasProperty(QTextFormat::BlockCodeFence);
    if (format.headingLevel() > 1) format.setTopMargin(room);
    if (is_fenced) {
        format.setNonBreakableLines(false);
        format.setBackground(ground);
        format.setLeftMargin(room);
        format.setRightMargin(room);
    }
    if (is_fenced || format.headingLevel() > 1) QTextCursor(block).setBlockFormat(format);
}

} // namespace

// Back and Forward go past `doSetSource`. Arrows scroll, but where a reader is at work they go from line to
// line: what the caret meets is read.
PageReader::PageReader(QWidget* parent) : QTextBrowser(parent) {
    connect(this, &QTextBrowser::sourceChanged, this, [this] { dress(); });
    follow_reader(*this, [this](bool is_at_work) {
        setTextInteractionFlags(textInteractionFlags().setFlag(Qt::TextSelectableByKeyboard, is_at_work));
    });
}

QVariant PageReader::loadResource(int type, const QUrl& name) {
    auto resource = QTextBrowser::loadResource(type, name);
    if (type == QTextDocument::MarkdownResource)
        return QByteArray::fromStdString(shown_markdown(resource.toByteArray().toStdString()));
    if (type != QTextDocument::ImageResource) return resource;
    QImage picture;
    if (!picture.loadFromData(resource.toByteArray())) return resource;
    const int margins = 2 * fontMetrics().height();
    const int room = width() - margins - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
    return picture.width() <= room ? picture : picture.scaledToWidth(room, Qt::SmoothTransformation);
}

void PageReader::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    const bool is_page = !page_at(url).empty() && (url.isRelative() || url.scheme() == QLatin1String("qrc"));
    if (!is_page) return; // no link leaves the handbook
    QTextBrowser::doSetSource(url, type);
}

void PageReader::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (event->size().width() == event->oldSize().width()) return;
    for (auto block = document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isImageFormat()) fit_picture(part.fragment());
}

void PageReader::fit_picture(const QTextFragment& picture) {
    const auto name = document()->baseUrl().resolved(QUrl(picture.charFormat().toImageFormat().name()));
    document()->addResource(QTextDocument::ImageResource, name,
                            loadResource(QTextDocument::ImageResource, name));
    document()->markContentsDirty(picture.position(), picture.length());
}

void PageReader::dress() {
    const int room = fontMetrics().height();
    document()->setDocumentMargin(room);
    dress_tables(*document()->rootFrame(), room);
    for (auto block = document()->begin(); block.isValid(); block = block.next())
        dress_block(block, room, palette().alternateBase());
}

// The toolkit bakes the colour of links into the page.
void PageReader::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) reload();
}

HandbookWindow::HandbookWindow(Handbook& handbook, const Places& places, PageDesk& pages, QWidget* origin)
    : ToolWindow(window_info("HANDBOOKWINDOW"), 0, Opener::main, origin, places), handbook_(handbook),
      settings_(places.settings), pages_(pages), origin_(origin), find_line_(new FindLine(this)),
      found_count_(new QLabel(this)), side_(new QStackedWidget(this)), contents_(new QTreeWidget(side_)),
      found_(new QListWidget(side_)), reader_(new PageReader(this)), split_(new QSplitter(this)),
      left_(new QWidget(split_)) {
    setAttribute(Qt::WA_DeleteOnClose, false); // what was read is gone back to after it was closed, too
    make_contents();
    make_find_line();
    auto* const column = new QVBoxLayout(left_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(find_line_);
    column->addWidget(side_, 1);
    column->addWidget(found_count_);
    found_count_->hide();
    split_->addWidget(reader_);
    split_->setStretchFactor(1, 1);
    split_->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(bar());
    layout->addWidget(split_, 1);
    reader_->setAccessibleName(QStringLiteral("Page"));
    connect(reader_, &QTextBrowser::sourceChanged, this, [this] { follow_page(); });
    add_keys();
    reader_->setFocus();
    QTimer::singleShot(0, this, [this] { handbook_.read_pages(); }); // before anybody types
}

// At the edge of the screen, high and narrow, beside what is worked in.
std::optional<Rectangle> HandbookWindow::first_place() const {
    const auto area = (origin_ != nullptr ? origin_->screen() : screen())->availableGeometry();
    const int right = area.left() + area.width();
    const int width = first_width_letters * fontMetrics().averageCharWidth();
    return Rectangle{right - width, area.top(), right, area.top() + area.height()};
}

void HandbookWindow::closeEvent(QCloseEvent* event) {
    ToolWindow::closeEvent(event);
    if (!event->isAccepted()) return;
    find_line_->clear();
    reader_->setFocus();
}

void HandbookWindow::resizeEvent(QResizeEvent* event) {
    ToolWindow::resizeEvent(event);
    divide();
}

// Where it is narrow, the contents leave their room to the page, and what is found stands above it.
HandbookWindow::Division HandbookWindow::wanted_division() const {
    if (width() >= narrow_letters * fontMetrics().averageCharWidth()) return Division::beside;
    return side_->currentWidget() == found_ ? Division::found_above : Division::page_alone;
}

void HandbookWindow::divide() {
    const auto wanted = wanted_division();
    if (std::exchange(division_, wanted) == wanted) return;
    split_->setOrientation(wanted == Division::beside ? Qt::Horizontal : Qt::Vertical);
    side_->setVisible(wanted != Division::page_alone);
    left_->setMaximumHeight(wanted == Division::page_alone ? find_line_->sizeHint().height()
                                                           : QWIDGETSIZE_MAX);
    const int side = contents_letters * fontMetrics().averageCharWidth();
    if (wanted == Division::beside) return split_->setSizes({side, width() - side});
    const int above = wanted == Division::found_above ? height() / 3 : left_->maximumHeight();
    split_->setSizes({above, height() - above});
}

void HandbookWindow::make_contents() {
    contents_->setObjectName(QStringLiteral("contents"));
    contents_->setAccessibleName(QStringLiteral("Table of contents"));
    contents_->setHeaderHidden(true);
    QTreeWidgetItem* chapter = nullptr;
    for (const auto& topic : handbook_.topics()) {
        auto* const entry = topic.level > 0 && chapter != nullptr ? new QTreeWidgetItem(chapter)
                                                                  : new QTreeWidgetItem(contents_);
        entry->setText(0, string_of(topic.title));
        entry->setData(0, page_role, string_of(topic.page));
        if (topic.level == 0) chapter = entry;
    }
    contents_->expandAll();
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* entry) {
        if (entry != nullptr && contents_->hasFocus())
            open(entry->data(0, page_role).toString().toStdString());
    });
    side_->addWidget(contents_);
    side_->addWidget(found_);
    found_->setObjectName(QStringLiteral("found"));
    found_->setAccessibleName(QStringLiteral("Pages found"));
    found_->setWordWrap(true);
    found_->setAlternatingRowColors(true);
    tell_current_cell(*found_);
    connect(found_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* entry) {
        if (entry == nullptr) return;
        open(entry->data(page_role).toString().toStdString());
        mark_words();
    });
}

void HandbookWindow::make_find_line() {
    find_line_->describe(QStringLiteral("Find in all pages (Ctrl+F)"),
                         QStringLiteral("Words or their beginnings; Down goes to what is found"));
    connect(find_line_, &QLineEdit::textChanged, this, [this](const QString& words) { search(words); });
    find_line_->entered = [this] { go_into_found(); };
    find_line_->stepped = [this](const QKeyEvent& event) {
        if (event.key() == Qt::Key_Down) go_into_found();
    };
}

QPushButton* HandbookWindow::button(const char* name, const QString& caption, const QKeySequence& key,
                                    const std::function<void()>& action) {
    auto* const made = new QPushButton(caption, this);
    made->setObjectName(QString::fromLatin1(name));
    press_in_window(*this, key, *made);
    connect(made, &QPushButton::clicked, this, action);
    return made;
}

QLayout* HandbookWindow::bar() {
    auto* const line = new QHBoxLayout;
    auto* const back =
        button("back", QStringLiteral("&Back"), QKeySequence::Back, [this] { reader_->backward(); });
    auto* const forth =
        button("forward", QStringLiteral("&Forward"), QKeySequence::Forward, [this] { reader_->forward(); });
    connect(reader_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(reader_, &QTextBrowser::forwardAvailable, forth, &QWidget::setEnabled);
    for (auto* const way : {back, forth}) {
        set_tip(*way, {}, QStringLiteral("As soon as there is a page that way"));
        way->setEnabled(false);
        line->addWidget(way);
    }
    line->addWidget(button("contents_page", QStringLiteral("&Contents"), Qt::ALT | Qt::Key_Home,
                           [this] { open(contents_page); }));
    line->addStretch();
    line->addWidget(button("print", QStringLiteral("&Print"), QKeySequence::Print, [this] { print(); }));
    line->addWidget(closing_ok(QStringLiteral("OK")));
    return line;
}

// Esc first clears what is looked for.
void HandbookWindow::add_keys() {
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, [this] {
        find_line_->hasFocus() && !find_line_->text().isEmpty() ? find_line_->clear() : void(close());
    });
}

void HandbookWindow::open(std::string_view page) {
    if (page.empty() || page == shown_page()) return;
    reader_->setSource(url_of(handbook_.topic(page) == nullptr ? contents_page : page));
}

std::string HandbookWindow::shown_page() const {
    return page_at(reader_->source());
}

std::string HandbookWindow::shown_title() const {
    const auto* const topic = handbook_.topic(shown_page());
    return topic == nullptr ? "Contents" : topic->title;
}

void HandbookWindow::follow_page() {
    tell_name(*reader_, string_of(shown_title()));
    if (side_->currentWidget() == contents_) show_in_contents(); // a hidden one would be read all the same
}

void HandbookWindow::show_in_contents() {
    const auto page = string_of(shown_page());
    for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at)
        if ((*at)->data(0, page_role).toString() == page) contents_->setCurrentItem(*at);
    if (page == string_of(contents_page)) contents_->setCurrentItem(nullptr);
}

void HandbookWindow::search(const QString& words) {
    const auto all = handbook_.search(words.toStdString());
    found_->clear();
    for (const auto& [topic, excerpt] : all) {
        auto* const entry = new QListWidgetItem(string_of(topic->title + '\n' + excerpt), found_);
        entry->setData(page_role, string_of(topic->page));
    }
    const bool is_blank = words.trimmed().isEmpty();
    if (is_blank) reader_->setExtraSelections({});
    found_count_->setVisible(!is_blank);
    side_->setCurrentWidget(is_blank ? static_cast<QWidget*>(contents_) : found_);
    divide();
    if (is_blank) show_in_contents();
    const auto count = all.empty()       ? QStringLiteral("Nothing found")
                       : all.size() == 1 ? QStringLiteral("1 page found")
                                         : QStringLiteral("%1 pages found").arg(all.size());
    found_count_->setText(count);
    find_line_->tell_found(is_blank ? QString() : count);
}

void HandbookWindow::go_into_found() {
    if (found_->count() == 0) return;
    found_->setFocus();
    found_->setCurrentRow(0);
}

// Every place of each word that was looked for, within others only if it begins none; the page begins with
// the first.
void HandbookWindow::mark_words() {
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(palette().highlight());
    mark.format.setForeground(palette().highlightedText());
    QList<QTextEdit::ExtraSelection> marks;
    for (const auto& word : Handbook::sought_words(find_line_->text().toStdString())) {
        const auto part = QRegularExpression::escape(string_of(word));
        const auto before = marks.size();
        for (const auto& way : {QStringLiteral("\\b") + part, part}) {
            if (marks.size() > before) break;
            const QRegularExpression sought(way, QRegularExpression::CaseInsensitiveOption);
            mark.cursor = reader_->document()->find(sought);
            for (; !mark.cursor.isNull(); mark.cursor = reader_->document()->find(sought, mark.cursor))
                marks << mark;
        }
    }
    reader_->setExtraSelections(marks);
    if (marks.isEmpty()) return;
    auto first = std::min_element(marks.begin(), marks.end(), [](const auto& one, const auto& other) {
                     return one.cursor.position() < other.cursor.position();
                 })->cursor;
    first.clearSelection();
    reader_->setTextCursor(first);
    reader_->ensureCursorVisible();
}

void HandbookWindow::print() {
    pages_.show(handbook_printout(shown_title(), handbook_.page(shown_page()), settings_.printer_scale));
}

} // namespace wortlex
