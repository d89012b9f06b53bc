#include "base/WcharArrayToQString.h"

QString WcharArrayToQString(const wchar_t* text) {
    return text ? QString::fromWCharArray(text) : QString();
}
