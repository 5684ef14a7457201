#ifndef RUQGUI_FAULTS_FAILINGALLOCATOR_H
#define RUQGUI_FAULTS_FAILINGALLOCATOR_H

/// operator new of this program, in all its libraries: it can be told to fail once.
namespace failing_allocator {

/// The \a number-th allocation from now fails, from 1; 0: none.
void failAt(long number);

/// Whether it has failed since failAt().
bool hasFailed();

/// The blocks that are in use.
long blocksInUse();

} // namespace failing_allocator

#endif
