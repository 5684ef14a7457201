#include <CRangeSliderSpinboxed.h>

#include <iostream>
#include <qapplication.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QObject::connect(&application, SIGNAL(lastWindowClosed()), &application, SLOT(quit()));

    TEVU::CRangeSliderSpinboxed greyValues(Qt::Horizontal, false, 20, 60, 0, 255, nullptr,
                                           "greyValues");
    greyValues.show();
    application.exec();
    std::cout << greyValues.GetLower() << " to " << greyValues.GetUpper() << std::endl;
}
