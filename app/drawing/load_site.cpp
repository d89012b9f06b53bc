#include "drawing/load_site.h"

#include "drawing/dxf/read_dxf.h"
#include "drawing/site_of_drawing.h"
#include "text/input_text.h"
#include "text/words.h"

#include <QString>

namespace firecheck {

namespace {

/// JSON starts with a brace, tagged lines with a number; other drawings are told from both by their first
/// letters.
bool isDrawing(const std::string& text, const std::string& fileName) {
    const QString name = QString::fromStdString(fileName);
    if (name.endsWith(".dxf", Qt::CaseInsensitive) || name.endsWith(".dwg", Qt::CaseInsensitive))
        return true;
    const auto first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    if (first == std::string::npos)
        return false;
    const bool isNumber =
        text[first] >= '0' && text[first] <= '9' && text.find('\n', first) != std::string::npos;
    return isNumber || text.rfind("AC10", 0) == 0 ||
           text.substr(0, 22).find("Binary DXF") != std::string::npos;
}

} // namespace

SiteFile parseDrawing(const std::string& text, const std::string& name, const DrawingOptions& options) {
    SiteOfDrawing read = siteOfDrawing(readDxf(text, name, options.encoding), name,
                                       options.layers ? &*options.layers : nullptr);
    SiteFile file;
    file.value = std::move(read.value);
    file.drawing = std::move(read.source);
    fillSite(file, name);
    file.site.drawingUnit = read.unit;
    return file;
}

SiteFile loadSiteFile(const std::string& fileName, const DrawingOptions& options) {
    std::string text = inputText(fileName, filled(Words::tr("a site file")));
    return isDrawing(text, fileName) ? parseDrawing(text, fileName, options)
                                     : parseSiteFile(std::move(text), fileName);
}

Site loadSite(const std::string& fileName, const DrawingOptions& options) {
    return loadSiteFile(fileName, options).site;
}

} // namespace firecheck
