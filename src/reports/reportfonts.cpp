#include "reports/reportfonts.h"

QFont reportFont(ReportFont face)
{
    QFont font(QStringLiteral("Sans Serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    switch (face) {
    case ReportFont::Normal:
        font.setPixelSize(9);
        break;
    case ReportFont::Bold:
        font.setPixelSize(9);
        font.setBold(true);
        break;
    case ReportFont::Heading:
        font.setPixelSize(11);
        font.setBold(true);
        break;
    case ReportFont::Title:
        font.setPixelSize(14);
        font.setBold(true);
        break;
    case ReportFont::Small:
        font.setPixelSize(8);
        break;
    }
    return font;
}
