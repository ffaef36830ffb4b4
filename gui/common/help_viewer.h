// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help viewer: a window beside the main window that shows the pages of the compiled help file.
#pragma once

#include <QPointer>
#include <QTextBrowser>
#include <QWidget>
#include <filesystem>
#include <memory>
#include <string_view>

class QPushButton;

namespace vesk::gui {

class ChmFile;

// A text browser whose pages, stylesheets and pictures come out of a help
// file: every link stays inside it, and a path is found with "\" as "/" and
// without regard to case.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpBrowser(QWidget* parent = nullptr);
    void setFile(const ChmFile* file) { m_file = file; }
    // The url of a path inside the help file ("chm:/Option Menu/Pumps.htm").
    static QUrl urlOf(std::string_view path);

    QVariant loadResource(int type, const QUrl& url) override;

  private:
    void follow(const QUrl& url);
    const ChmFile* m_file = nullptr;
};

// The one help window of the program. It is no dialog: it runs beside the
// other windows, and nothing waits for it. While a modal dialog is open it
// stands over that dialog, so that it can still be read and clicked; when the
// dialog goes, the viewer stays.
class HelpViewer : public QWidget {
    Q_OBJECT

  public:
    // Shows the topic ("Option Menu\Pumps.htm") of a help file in the help
    // window, made when there is none; returns the window, or nullptr when
    // the file cannot be read as a help file (nothing is reported then).
    static HelpViewer* showTopic(const std::filesystem::path& helpFile, std::string_view topic);
    // The help window, if one is open.
    static HelpViewer* instance();

    ~HelpViewer() override;
    HelpBrowser* browser() const { return m_browser; }
    // The path inside the help file of the page on show.
    QString currentPath() const;
    // The contents page of the help file.
    void showContents();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    HelpViewer();
    bool openFile(const std::filesystem::path& helpFile);
    void showPath(std::string_view topic);
    void standOverModalWindow();

    std::filesystem::path m_helpFile;
    std::unique_ptr<ChmFile> m_file;
    HelpBrowser* m_browser;
    QPushButton* m_back;
    QPushButton* m_forward;
    QPointer<QWidget> m_modalOwner;
};

} // namespace vesk::gui
