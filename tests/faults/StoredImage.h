#ifndef RUQGUI_FAULTS_STOREDIMAGE_H
#define RUQGUI_FAULTS_STOREDIMAGE_H

#include "TestFolder.h"

#include <string>

/// An image file that a save replaces: its pixels are all 1 before and all 2 after.
class StoredImage {
public:
    StoredImage();

    static constexpr const char* c_sKind = "image"; ///< For SAVE_ONCE.
    std::string Path() const;

    /// Empty when the file is whole and is the new image, or the old one unless \a saved, and when the next save
    /// leaves nothing else behind.
    std::string Complaint(bool saved) const;

    /// Saves once more; empty when nothing but the image is left.
    std::string ComplaintAfterTheNextSave() const;

    bool IsNewFile(const std::string& path) const; ///< That of a save that is under way.
    bool HasNewFile() const { return !m_folder.Names(".new").empty(); }

    void Save(int pixel) const; ///< An image of this pixel, from 0 to 255, everywhere.
    static void SaveAs(const std::string& path, int pixel);
    int Pixel() const { return PixelOf(Path()); }
    static int
    PixelOf(const std::string& path); ///< The one pixel of an image; -1 when they differ.

private:
    TestFolder m_folder;
};

#endif
