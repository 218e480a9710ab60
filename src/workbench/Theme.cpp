#include "workbench/Theme.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>

namespace glotta {
namespace {

struct RoleColor {
    QPalette::ColorRole role;
    const char* light;
    const char* dark;
};
constexpr RoleColor Colors[] = {
    {QPalette::Window, "#f3f4f6", "#323840"},        {QPalette::WindowText, "#1f2328", "#d8dee9"},
    {QPalette::Base, "#ffffff", "#1b1f24"},          {QPalette::AlternateBase, "#f6f8fa", "#22272d"},
    {QPalette::ToolTipBase, "#ffffe6", "#2d333b"},   {QPalette::ToolTipText, "#1f2328", "#d8dee9"},
    {QPalette::Text, "#1f2328", "#d8dee9"},          {QPalette::Button, "#eceef1", "#444c56"},
    {QPalette::ButtonText, "#1f2328", "#d8dee9"},    {QPalette::BrightText, "#ffffff", "#ffffff"},
    {QPalette::Highlight, "#2f6fb2", "#3d6ea5"},     {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#0b5fb0", "#7fb4f0"},          {QPalette::LinkVisited, "#6b4a9e", "#b59ae0"},
    {QPalette::PlaceholderText, "#8a929b", "#7d8590"}, {QPalette::Light, "#ffffff", "#545d68"},
    {QPalette::Midlight, "#f8f9fa", "#4a525c"},      {QPalette::Mid, "#c3c8ce", "#2a2f36"},
    {QPalette::Dark, "#9aa1a9", "#14171a"},          {QPalette::Shadow, "#6b7178", "#0c0e10"}};
constexpr QPalette::ColorRole Dimmed[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                          QPalette::HighlightedText};

QPalette PaletteOf(bool dark) {
    QPalette palette;
    for (const RoleColor& each : Colors)
        palette.setColor(each.role, QColor(dark ? each.dark : each.light));
    for (QPalette::ColorRole role : Dimmed)
        palette.setColor(QPalette::Disabled, role, QColor(dark ? "#6b737d" : "#9aa1a9"));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(dark ? "#333a42" : "#d5d9de"));
    return palette;
}

// The style's own sign for the buttons that a tool bar has no room for is black, which nobody sees on dark ground.
class HostStyle : public QProxyStyle {
public:
    HostStyle() : QProxyStyle("Fusion") {}
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
        if (which != SP_ToolBarHorizontalExtensionButton) return QProxyStyle::standardIcon(which, option, widget);
        QPixmap sign(64, 64);
        sign.fill(Qt::transparent);
        QPainter painter(&sign);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor("#8a929b"), 8));
        for (int left : {10, 32})
            painter.drawPolyline(QPolygon({{left, 14}, {left + 18, 32}, {left, 50}}));
        painter.end();
        return sign;
    }
};

} // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor CodePaper(bool dark) {
    return QColor(dark ? "#1b1f24" : "#ffffff");
}

void ApplyTheme(std::string_view theme) {
    static const bool systemIsDark = IsDark(QApplication::palette()); // before the first change
    QApplication::setStyle(new HostStyle);
    QApplication::setPalette(PaletteOf(theme == "Dark" || (theme == "System" && systemIsDark)));
}

} // namespace glotta
