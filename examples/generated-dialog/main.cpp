#include "PoreDialog.h"

#include <exception>
#include <iostream>
#include <qapplication.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    PoreDialog dialog;
    try {
        if (dialog.show())
            std::cout << "Comment: " << dialog.m_parameters.EntryString("comment") << std::endl;
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return 1;
    }
}
