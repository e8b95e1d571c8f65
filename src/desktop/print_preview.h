// Reports are shown in a preview; from there they go to paper or into a PDF file.
#pragma once

#include "base/ports/file_dialogs.h"
#include "desktop/form_widgets.h"
#include "desktop/placement.h"
#include "desktop/print_preview_form.h"

#include <QDialog>
#include <QScrollArea>

namespace wortlex {

/// One page on a grey ground.
class PageView : public QScrollArea {
public:
    PageView(const PreviewPages& pages, QWidget* parent);
    /// After the page, its paper or the zoom has changed.
    void refresh();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    const PreviewPages& pages_;
    QWidget* sheet_;
};

/// What the preview asks, and what it remembers.
struct PrintPorts {
    Files& files;
    Prompts& prompts;
    Places places;
    FolderSet& folders;
    PaperChoice& paper;
};

class PrintPreview : public QDialog {
public:
    PrintPreview(const PrintRequest& request, const PrintPorts& ports, QWidget* owner);
    ~PrintPreview() override { hide(); }
    FormWidgets& widgets() { return widgets_; }
    void setVisible(bool visible) override;

private:
    Form made_form();
    void lay_out_rows();
    void print();
    void save();

    PrintPorts ports_;
    PreviewPages pages_;
    Form form_;
    FormWidgets widgets_;
    PageView* view_;
    WindowPlace& place_;
};

/// Shows every report in a preview over the window in use.
class PreviewDesk : public PageDesk {
public:
    /// The paper is kept in `data_folder`. All must outlive the desk.
    PreviewDesk(Files& files, Prompts& prompts, const Places& places, FolderSet& folders,
                std::string data_folder);
    void show(const PrintRequest& request) override;

private:
    std::string data_folder_;
    PaperChoice paper_; ///< as the user left it the last time
    PrintPorts ports_;
};

} // namespace wortlex
