#include "DataPage.h"

#include "FilterPanel.h"
#include "ImagesPanel.h"
#include "Options.h"
#include "ParametersPanel.h"
#include "SettingsPanel.h"
#include "SignalLog.h"

#include <qt3/Layout.h>
#include <qt3/Widget.h>

QWidget* createDataPage(QWidget* parent, SignalLog& log, const Options& options) {
    auto* page = new qt3::Widget(parent, "dataPage");
    auto* row = new qt3::HBoxLayout(page, 8, 8);
    auto* left = new qt3::VBoxLayout(row, 8);
    auto* filter = new FilterPanel(page, "filter");
    auto* images = new ImagesPanel(page, "openImagesPanel", *filter);
    if (!options.m_images.empty())
        images->load(options.m_images);
    left->addWidget(filter);
    left->addWidget(images, 1);
    auto* right = new qt3::VBoxLayout(row, 8);
    right->addWidget(new SettingsPanel(page, "settings", *filter));
    right->addWidget(new ParametersPanel(page, "generatedDialog"), 1);
    log.watch(filter, "filter");
    return page;
}
