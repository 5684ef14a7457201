#include "FlowRuns.h"

#include "FileDialogTest.h"

#include <gtest/gtest.h>

using TEVU::CFileDialog;

FlowRuns::FlowRuns(flow::Stage& stage, QWidget* parent)
    : m_stage(stage), m_model(stage), m_dialog(parent) {}

void FlowRuns::save(const std::string& fileName, bool append, const flow::Series& series) {
    const bool expected = m_model.save(fileName, append, series);

    ASSERT_EQ(m_dialog.GetSaveFileName(fileName, flow::c_filter,
                                       append ? CFileDialog::eAppend : CFileDialog::eOverwrite),
              expected);
    expectState();
}

void FlowRuns::open(const flow::Series& series) {
    const bool expected = m_model.open(false, series) > 0;

    ASSERT_EQ(m_dialog.GetOpenFileName(flow::c_filter, CFileDialog::UseWorkingDir), expected);
    expectState();
}

void FlowRuns::openSeveral(const flow::Series& series) {
    const std::size_t expected = m_model.open(true, series);

    ASSERT_EQ(m_dialog.GetOpenFileNames(flow::c_filter, CFileDialog::UseWorkingDir), expected);
    expectState();
}

void FlowRuns::remember(const std::string& key, const std::string& text) {
    FileDialogTest::remember(key, text);
    m_model.registry[key] = text;
}

void FlowRuns::expectState() {
    ASSERT_NO_FATAL_FAILURE(m_stage.finishRun());
    ASSERT_EQ(m_dialog.FilePaths(), m_model.paths);
    ASSERT_EQ(m_dialog.FileExtension(false), m_model.extension);
    ASSERT_FALSE(m_dialog.WasFileSelected());
    ASSERT_EQ(FileDialogTest::remembered(), m_model.registryLines());
    ++m_nRuns;
}
