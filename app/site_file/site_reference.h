#pragma once

#include <string>

/// Every class of site files with its keys, in Markdown.
std::string siteReference();
