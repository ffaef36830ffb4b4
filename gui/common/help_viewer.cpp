// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help viewer: a window beside the main window that shows the pages of the compiled help file.
#include "gui/common/help_viewer.h"

#include "gui/common/chm_file.h"

#include "messages/help_topics.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStringDecoder>
#include <QTextDocument>
#include <QVBoxLayout>

namespace vesk::gui {

namespace {

constexpr const char* helpScheme = "chm";
constexpr const char* viewerTitle = "Vesk Help";

QPointer<HelpViewer>& theViewer() {
    static QPointer<HelpViewer> viewer;
    return viewer;
}

// A page's text in the character set its head declares (UTF-8 when it
// declares none).
QString pageText(const QByteArray& bytes) {
    QStringDecoder decoder = QStringDecoder::decoderForHtml(bytes);
    if (!decoder.isValid()) {
        return QString::fromUtf8(bytes);
    }
    return decoder.decode(bytes);
}

} // namespace

// ---------------------------------------------------------------- HelpBrowser

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("txtHelpPage"));
    // Every link is followed here, so that it stays inside the help file.
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
}

QUrl HelpBrowser::urlOf(std::string_view path) {
    QUrl url;
    url.setScheme(QString::fromLatin1(helpScheme));
    url.setPath(QString::fromStdString(HelpFilePath(path)));
    return url;
}

void HelpBrowser::follow(const QUrl& link) {
    const QUrl url = source().resolved(link);
    if (url.scheme() == QLatin1String(helpScheme)) {
        setSource(url);
    } else {
        QDesktopServices::openUrl(url);
    }
}

QVariant HelpBrowser::loadResource(int type, const QUrl& url) {
    if (m_file == nullptr || url.scheme() != QLatin1String(helpScheme)) {
        return QTextBrowser::loadResource(type, url);
    }
    const std::optional<std::string> bytes = m_file->read(url.path(QUrl::FullyDecoded).toStdString());
    if (!bytes) {
        if (type == QTextDocument::HtmlResource) {
            return QStringLiteral("<p>This page is not in the help file: %1</p>")
                .arg(url.path(QUrl::FullyDecoded).toHtmlEscaped());
        }
        return {};
    }
    const QByteArray content(bytes->data(), static_cast<qsizetype>(bytes->size()));
    if (type == QTextDocument::HtmlResource) {
        return pageText(content);
    }
    if (type == QTextDocument::StyleSheetResource) {
        return QString::fromUtf8(content);
    }
    return content; // a picture, which the document decodes itself
}

// ---------------------------------------------------------------- HelpViewer

HelpViewer::HelpViewer()
    : m_browser(new HelpBrowser), m_back(new QPushButton(QStringLiteral("Back"))),
      m_forward(new QPushButton(QStringLiteral("Forward"))) {
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(QString::fromLatin1(viewerTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::Window);

    auto* contents = new QPushButton(QStringLiteral("Contents"));
    contents->setObjectName(QStringLiteral("cmdHelpContents"));
    m_back->setObjectName(QStringLiteral("cmdHelpBack"));
    m_forward->setObjectName(QStringLiteral("cmdHelpForward"));
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    connect(contents, &QPushButton::clicked, this, &HelpViewer::showContents);
    connect(m_back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, m_back, &QPushButton::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, m_forward, &QPushButton::setEnabled);
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = m_browser->documentTitle();
        setWindowTitle(title.isEmpty() ? QString::fromLatin1(viewerTitle)
                                       : title + QStringLiteral(" - ") + QString::fromLatin1(viewerTitle));
    });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(contents);
    buttons->addWidget(m_back);
    buttons->addWidget(m_forward);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser, 1);
    resize(720, 640);
}

HelpViewer::~HelpViewer() = default;

HelpViewer* HelpViewer::instance() {
    return theViewer().data();
}

HelpViewer* HelpViewer::showTopic(const std::filesystem::path& helpFile, std::string_view topic) {
    QPointer<HelpViewer>& viewer = theViewer();
    if (viewer.isNull()) {
        viewer = new HelpViewer;
    }
    if (!viewer->openFile(helpFile)) {
        viewer->close();
        return nullptr;
    }
    viewer->standOverModalWindow();
    viewer->showPath(topic);
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return viewer.data();
}

bool HelpViewer::openFile(const std::filesystem::path& helpFile) {
    if (m_file && m_helpFile == helpFile) {
        return true;
    }
    m_browser->setFile(nullptr);
    m_file = ChmFile::open(helpFile);
    if (!m_file) {
        return false;
    }
    m_helpFile = helpFile;
    m_browser->setFile(m_file.get());
    m_browser->clearHistory();
    return true;
}

void HelpViewer::showPath(std::string_view topic) {
    m_browser->setSource(HelpBrowser::urlOf(topic), QTextDocument::HtmlResource);
}

void HelpViewer::showContents() {
    if (m_file) {
        showPath(m_file->defaultTopic());
    }
}

QString HelpViewer::currentPath() const {
    return m_browser->source().path(QUrl::FullyDecoded);
}

// A window of its own is blocked while a modal dialog is open; as a window
// owned by that dialog it is not. When the dialog goes, the viewer becomes a
// window of its own again.
void HelpViewer::standOverModalWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == m_modalOwner || modal == this) {
        return;
    }
    if (m_modalOwner) {
        m_modalOwner->removeEventFilter(this);
    }
    m_modalOwner = modal;
    const QRect place = geometry();
    setParent(modal, Qt::Window);
    setGeometry(place);
    modal->installEventFilter(this);
}

bool HelpViewer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_modalOwner && (event->type() == QEvent::Hide || event->type() == QEvent::Destroy)) {
        m_modalOwner->removeEventFilter(this);
        m_modalOwner = nullptr;
        const bool shown = isVisible();
        const QRect place = geometry();
        setParent(nullptr, Qt::Window);
        setGeometry(place);
        if (shown) {
            show();
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace vesk::gui
