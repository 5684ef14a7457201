#include "SettingsPanel.h"

#include "FilterPanel.h"
#include "Form.h"
#include "Paths.h"
#include "SettingsFile.h"

#include <CFileDialog.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <ruqlib2core/CException.h>

using TEVU::CFileDialog;

namespace {

const char* const c_sFilter = "Settings of the gallery (*.settings)";

const struct {
    const char* m_sTitle;
    const char* m_sFile;
} c_samples[] = {{"Same version", "same-version.settings"},
                 {"Older version", "older-version.settings"},
                 {"Future version", "future-version.settings"},
                 {"Compatible family", "compatible-family.settings"},
                 {"Compatible family, future version", "compatible-future.settings"},
                 {"Foreign file", "foreign.settings"},
                 {"Without a stamp", "without-stamp.settings"}};

} // namespace

SettingsPanel::SettingsPanel(QWidget* parent, const char* name, FilterPanel& filter)
    : qt3::Widget(parent, name), m_filter(filter), m_format("ruqgui gallery:settings:1", "1.2") {
    qt3::GroupBox* const box = boxIn(this, "Settings file: the filter, with a stamp");
    auto* column = columnIn(box);
    addText(box, column,
            ("It is stamped \"" + m_format.m_sIdentifier + "\", version " + m_format.m_sVersion)
                .c_str());
    auto* samples = new qt3::HBoxLayout(column, 6);
    m_pSamples = new qt3::ComboBox(box, "samples");
    for (const auto& sample : c_samples)
        m_pSamples->insertItem(sample.m_sTitle);
    samples->addWidget(m_pSamples, 1);
    addButton(box, samples, "Load this sample", "loadSample", SLOT(loadSample()));
    auto* files = new qt3::HBoxLayout(column, 6);
    addButton(box, files, "&Load...", "loadSettings", SLOT(load()));
    addButton(box, files, "Sa&ve...", "saveSettings", SLOT(save()));
    m_pMessage = addMessage(box, column, "Nothing loaded yet", "settingsMessage");
    m_pEntries = addPane(box, column, "settingsEntries", 6);
}

void SettingsPanel::addButton(qt3::GroupBox* box, qt3::HBoxLayout* line, const char* text,
                              const char* name, const char* slot) {
    auto* button = new qt3::PushButton(text, box, name);
    connect(button, SIGNAL(clicked()), this, slot);
    line->addWidget(button);
}

void SettingsPanel::load() {
    CFileDialog dialog(this);
    if (dialog.GetOpenFileName(c_sFilter, CFileDialog::UseWorkingDir))
        loadFrom(dialog.FilePath());
}

void SettingsPanel::loadSample() {
    loadFrom(dataFile(c_samples[m_pSamples->currentItem()].m_sFile));
}

void SettingsPanel::loadFrom(const std::string& path) {
    const std::string name = lastPart(path);
    try {
        TEVU::CValueMap map = SettingsFile::read(path);
        if (m_format.VerifyLoadedMapWithErrorMessageBox(map, name.c_str(), "gallery settings",
                                                        "gallery")) {
            m_filter.SetSettings(map);
            tell("Loaded " + name + ". Without its stamp:", SettingsFile::toText(map));
        } else {
            tell("Not loaded: " + name + ". It holds:", SettingsFile::toText(map));
        }
    } catch (const TEVU::CException& error) {
        tell("Not loaded: " + name, error.Message());
    }
}

void SettingsPanel::save() {
    CFileDialog dialog(this);
    if (!dialog.GetSaveFileName("gallery.settings", c_sFilter, CFileDialog::eOverwrite))
        return;
    TEVU::CValueMap map = m_filter.Settings();
    m_format.AddIdVersion(map);
    try {
        SettingsFile::write(map, dialog.FilePath());
        tell("Saved:", SettingsFile::toText(map));
    } catch (const TEVU::CException& error) {
        tell("Not saved:", error.Message());
    }
}

void SettingsPanel::tell(const std::string& message, const std::string& entries) {
    m_pMessage->setText(qt3::fromAscii(message));
    m_pEntries->setText(qt3::fromAscii(entries));
}
