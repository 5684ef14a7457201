#ifndef RUQGUI_TESTS_HEADER_HEADERTOOLSJOURNAL_H
#define RUQGUI_TESTS_HEADER_HEADERTOOLSJOURNAL_H

#include "Recorder.h"

/// Notes which header tools are called, in their order, with what is written: for rules that the
/// image does not show afterwards. The tools do their work all the same.
/// \code
/// HeaderToolsJournal journal;
/// form.WriteAttributesToImage(image);
/// EXPECT_EQ(journal.take(), (support::Lines{"GetSpacing", "SetCreator(Ada)", …}));
/// \endcode
/// One at a time.
class HeaderToolsJournal {
public:
    HeaderToolsJournal();
    HeaderToolsJournal(const HeaderToolsJournal&) = delete;
    HeaderToolsJournal& operator=(const HeaderToolsJournal&) = delete;
    ~HeaderToolsJournal();

    void add(const std::string& call) { m_vCalls.push_back(call); }

    /// The calls since the last call of this.
    support::Lines take();

    /// From now on GetSpacing fails and leaves \a left in its arguments.
    void failGetSpacing(double left);

    bool m_bGetSpacingFails = false;
    double m_dLeftBehind = 0.0;

private:
    support::Lines m_vCalls;
};

#endif
