// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Site Layout: the tank, the bury depth, the rise, the number of branches and the picture of the site.
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/areas.h"
#include "workbench/site_picture.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPixmap>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace vesk::gui {

namespace {

// The platform's description of a picture file that cannot be read.
constexpr const char* invalidPicture = "Invalid picture";

// The picture box of the site layout: the picture fitted to the box, its
// proportions kept, whenever the box changes size.
class PictureBox : public QLabel {
  public:
    void setPicture(const QPixmap& picture) {
        m_picture = picture;
        fit();
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        fit();
    }

  private:
    void fit() {
        if (!m_picture.isNull()) {
            // Scaled in device pixels, so a high-density screen shows it sharp.
            const qreal ratio = devicePixelRatioF();
            QPixmap fitted =
                m_picture.scaled(contentsRect().size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            fitted.setDevicePixelRatio(ratio);
            setPixmap(fitted);
        }
    }
    QPixmap m_picture;
};

} // namespace

SiteLayoutArea::SiteLayoutArea(WindowContext& context, PanelControls& controls)
    : m_context(context), m_controls(controls), m_picSiteLayout(named(new PictureBox, "PicSiteLayout")) {
    nameAreaFrame(*this, Area::SiteLayout);
    auto* grid = new QGridLayout;
    grid->addWidget(controls.unitLabel("txtTankDiameter"), 0, 0);
    grid->addWidget(controls.field("txtTankDiameter"), 0, 1);
    grid->addWidget(controls.unitLabel("txtBuryDepth"), 1, 0);
    grid->addWidget(controls.field("txtBuryDepth"), 1, 1);
    grid->addWidget(controls.unitLabel("txtRise"), 2, 0);
    grid->addWidget(controls.field("txtRise"), 2, 1);
    grid->addWidget(caption(QStringLiteral("No. of Branches")), 3, 0);
    grid->addWidget(controls.list("cmbNoOfBranches"), 3, 1);
    grid->setColumnStretch(1, 1);

    m_picSiteLayout->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_picSiteLayout->setAlignment(Qt::AlignCenter);
    m_picSiteLayout->setMinimumSize(320, 220);
    m_picSiteLayout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(m_picSiteLayout, 1);
    layout->addWidget(recommendation("cmdSiteRec", "txtSiteRecommend", nullptr));
    layout->addWidget(helpFrame(Area::SiteLayout));
    m_txtSiteRecommend = findChild<QLineEdit*>(QStringLiteral("txtSiteRecommend"));
}

void SiteLayoutArea::refresh() {
    m_controls.showArea(Area::SiteLayout);
}

void SiteLayoutArea::loadSitePicture() {
    ApplicationState& app = m_context.app;
    app.window.sitePictureDue = false;
    const std::filesystem::path path = SitePicture(app.programFolder, app.panel);
    QPixmap picture;
    if (!picture.load(QString::fromStdU16String(path.u16string()))) {
        fail(invalidPicture);
    }
    static_cast<PictureBox*>(m_picSiteLayout)->setPicture(picture);
}

} // namespace vesk::gui
