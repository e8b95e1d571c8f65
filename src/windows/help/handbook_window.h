// The handbook on the screen: its contents or what a search has found, and beside them a page.
#pragma once

#include "desktop/find_line.h"
#include "desktop/tool_window.h"
#include "handbook/handbook.h"
#include "page/page.h"

#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

namespace wortlex {

/// A page of the handbook as it is read, dressed alike however it is come to. Links lead to other pages and
/// nowhere else.
class PageReader : public QTextBrowser {
public:
    explicit PageReader(QWidget* parent);
    /// Pictures are no wider than the page; its words as they are to be shown.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void dress();
    void fit_picture(const QTextFragment& picture);
};

class HandbookWindow : public ToolWindow {
public:
    HandbookWindow(Handbook& handbook, const Places& places, PageDesk& pages, QWidget* origin);
    void open(std::string_view page);

protected:
    std::optional<Rectangle> first_place() const override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// How the window divides itself.
    enum class Division { beside, page_alone, found_above };

    Division wanted_division() const;
    void divide();
    void make_contents();
    void make_find_line();
    QLayout* bar();
    void add_keys();
    QPushButton* button(const char* name, const QString& caption, const QKeySequence& key,
                        const std::function<void()>& action);
    void search(const QString& words);
    void follow_page();
    void show_in_contents();
    void mark_words();
    void go_into_found();
    void print();
    std::string shown_page() const;
    std::string shown_title() const;

    Handbook& handbook_;
    const SystemSettings& settings_;
    PageDesk& pages_;
    QPointer<QWidget> origin_;
    std::optional<Division> division_;
    FindLine* find_line_;
    QLabel* found_count_;
    QStackedWidget* side_;
    QTreeWidget* contents_;
    QListWidget* found_;
    PageReader* reader_;
    QSplitter* split_;
    QWidget* left_;
};

} // namespace wortlex
