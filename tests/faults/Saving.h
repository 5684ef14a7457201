#ifndef RUQGUI_FAULTS_SAVING_H
#define RUQGUI_FAULTS_SAVING_H

#include <functional>
#include <string>

/// Saves "after" in the registry, or an image of 2s, as an application does, whose processes end anyhow: \a kind is the
/// c_sKind of StoredRegistry or StoredImage. \a begin and \a end are called before and after what is to be watched.
/// True when the library says that what it was given is stored.
bool savesOnce(const std::string& kind, const std::string& path, const std::function<void()>& begin,
               const std::function<void()>& end);

#endif
