#ifndef RUQLIB2CORE_TESTS_ORDINARYCHILD_H
#define RUQLIB2CORE_TESTS_ORDINARYCHILD_H

#include <ChildProcess.h>

/// support::inChild() as a user whom file permissions hold back.
support::ChildProcess::Outcome
asOrdinaryUser(std::string (*task)(const support::ChildProcess::Arguments& arguments),
               const support::ChildProcess::Arguments& arguments);

#endif
