// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The System Settings dialog, frmData: fuel, component list and units.
#include "gui/workbench/settings_dialog.h"

#include "gui/workbench/dialogs.h"
#include "workbench/system_settings.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vesk::gui {

namespace {

QRadioButton* optionButton(const char* name, const QString& caption, QWidget* frame) {
    auto* button = new QRadioButton(caption, frame);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

// A frame of option buttons stacked in a column; the buttons of one frame
// exclude each other.
QGroupBox* optionFrame(const char* name, const QString& caption, std::initializer_list<QRadioButton*> buttons,
                       QWidget* parent) {
    auto* frame = new QGroupBox(caption, parent);
    frame->setObjectName(QString::fromLatin1(name));
    auto* column = new QVBoxLayout(frame);
    for (QRadioButton* button : buttons) {
        button->setParent(frame);
        column->addWidget(button);
    }
    column->addStretch();
    return frame;
}

} // namespace

SettingsDialog::SettingsDialog(ApplicationState& app, QWidget* parent) : QDialog(parent), m_app(app) {
    setObjectName(QStringLiteral("frmData"));
    setWindowTitle(QStringLiteral("System Settings"));
    setModal(true);

    m_optAmerican = optionButton("optAmerican", QStringLiteral("American"), this);
    m_optInternational = optionButton("optInternational", QStringLiteral("International"), this);
    m_optCommercial = optionButton("optCommercial", QStringLiteral("Commercial"), this);
    m_optGas = optionButton("optGas", QStringLiteral("Gas"), this);
    m_optDiesel = optionButton("optDiesel", QStringLiteral("Diesel"), this);
    m_optUS = optionButton("optUS", QStringLiteral("US"), this);
    m_optMetric = optionButton("optMetric", QStringLiteral("Metric"), this);

    auto* lblDataLocalization =
        new QLabel(QStringLiteral("Select the options for loading data in the site areas"), this);
    lblDataLocalization->setObjectName(QStringLiteral("lblDataLocalization"));

    auto* frames = new QHBoxLayout;
    frames->addWidget(optionFrame("fraComponent", QStringLiteral("Component List"),
                                  {m_optAmerican, m_optInternational, m_optCommercial}, this));
    frames->addWidget(optionFrame("fraData", QStringLiteral("Data"), {m_optGas, m_optDiesel}, this));
    frames->addWidget(optionFrame("fraUnits", QStringLiteral("Units"), {m_optUS, m_optMetric}, this));

    auto* fraHelp = new QGroupBox(QStringLiteral("Help"), this);
    fraHelp->setObjectName(QStringLiteral("fraHelp"));
    auto* lblHelp = new QLabel(QString::fromLatin1(settingsHelpText), fraHelp);
    lblHelp->setObjectName(QStringLiteral("lblHelp"));
    lblHelp->setWordWrap(true);
    lblHelp->setFixedWidth(440); // a fixed width gives the wrapped text its full height
    (new QVBoxLayout(fraHelp))->addWidget(lblHelp);

    auto* cmdOk = new QPushButton(QStringLiteral("Ok"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    auto* cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblDataLocalization);
    layout->addLayout(frames);
    layout->addWidget(fraHelp);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmdOk, &QPushButton::clicked, this, &SettingsDialog::pressOk);
    connect(cmdCancel, &QPushButton::clicked, this, &SettingsDialog::reject);

    // The load: a dialog that a site read left loaded keeps the options it set.
    showOptions(TouchFrmData(m_app.panel, m_app.config));
}

void SettingsDialog::showOptions(const FrmDataOptions& options) {
    m_optAmerican->setChecked(options.optAmerican);
    m_optInternational->setChecked(options.optInternational);
    m_optCommercial->setChecked(options.optCommercial);
    m_optGas->setChecked(options.optGas);
    m_optDiesel->setChecked(options.optDiesel);
    m_optUS->setChecked(options.optUS);
    m_optMetric->setChecked(options.optMetric);
}

FrmDataOptions SettingsDialog::optionsShown() const {
    FrmDataOptions options;
    options.optAmerican = m_optAmerican->isChecked();
    options.optInternational = m_optInternational->isChecked();
    options.optCommercial = m_optCommercial->isChecked();
    options.optGas = m_optGas->isChecked();
    options.optDiesel = m_optDiesel->isChecked();
    options.optUS = m_optUS->isChecked();
    options.optMetric = m_optMetric->isChecked();
    return options;
}

void SettingsDialog::pressOk() {
    m_app.panel.frmData = optionsShown();
    m_app.panel.frmDataLoaded = true;
    m_replot = ApplySystemSettings(m_app); // unloads the dialog's options
    accept();
}

void SettingsDialog::reject() {
    m_app.panel.frmDataLoaded = false;
    QDialog::reject();
}

bool ShowSystemSettings(QWidget* parent, ApplicationState& app) {
    SettingsDialog dialog(app, parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace vesk::gui
