#pragma once

#include <QString>

/// The text of a null-terminated wide string; empty for null.
QString WcharArrayToQString(const wchar_t* text);
