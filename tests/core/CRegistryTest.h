#ifndef RUQLIB2CORE_TESTS_CREGISTRYTEST_H
#define RUQLIB2CORE_TESTS_CREGISTRYTEST_H

#include "RegistryText.h"
#include "TestFolder.h"

#include <ChildProcess.h>
#include <System.h>

#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>

#include <algorithm>
#include <gtest/gtest.h>

/// What the tests of the registry share.
namespace registry_tests {

using Names = std::vector<std::string>;

/// Each test has a registry file of its own, and looks at the registry in child processes, or once.
class CRegistryTest : public testing::Test {
protected:
    CRegistryTest() { UseFile("registry.json"); }

    void UseFile(const std::string& name) const {
        support::setVariable("RUQ_REGISTRY", m_folder.Path(name));
    }

    TEVU::RegistryText::Settings SettingsInFile() const {
        return TEVU::RegistryText::read(m_folder.Read("registry.json"));
    }

    TestFolder m_folder;
};

inline std::string setAndGet(const std::string& text) {
    TEVU::CRegistry::Obj().SetEntry("key", new TEVU::CValueString(text));
    return TEVU::CRegistry::Obj().GetString("key", "missing");
}

inline std::size_t linesIn(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace registry_tests

#endif
