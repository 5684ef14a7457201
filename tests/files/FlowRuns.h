#ifndef RUQGUI_TESTS_FILES_FLOWRUNS_H
#define RUQGUI_TESTS_FILES_FLOWRUNS_H

#include "FlowModel.h"

#include <CFileDialog.h>

/// Runs of the flows one after the other with one object, each compared with the model: the result, the
/// members and the registry.
class FlowRuns {
public:
    /// \a stage plays the user of dialogs under \a parent.
    FlowRuns(flow::Stage& stage, QWidget* parent);

    void save(const std::string& fileName, bool append, const flow::Series& series);
    void open(const flow::Series& series);
    void openSeveral(const flow::Series& series);

    std::size_t count() const { return m_nRuns; }

    /// Puts an entry into the registry and into the model's.
    void remember(const std::string& key, const std::string& text);

private:
    void expectState();

    flow::Stage& m_stage;
    flow::Model m_model;
    TEVU::CFileDialog m_dialog;
    std::size_t m_nRuns = 0;
};

/// The greatest series are run in so many shares. Under wine a run takes several times as long: each look at the
/// registry's file goes through other processes.
#ifdef _WIN32
const std::size_t c_nShares = 16;
#else
const std::size_t c_nShares = 4;
#endif

#endif
