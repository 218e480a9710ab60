#include "workbench/ControlLooks.h"

#include "platform/Text.h"
#include "workbench/QtText.h"

#include <QtGui/QPainter>

namespace glotta {
namespace {

using Draw = void (*)(QPainter&, const QRect&, const TComponent&);
const QColor Line("#a0a0a0"), Ink("#202020"), Dim("#6a6a6a"), Paper("#ffffff"), Button("#e4e4e4"), Head("#e8ebee");
constexpr int LineHeight = 15, Pad = 4;

QString TextProperty(const TComponent& component, const char* name) {
    const FormProperty* property = component.Node().Find(name);
    return property && property->value.kind == FormValueKind::String ? Q(property->value.text) : QString();
}

bool IsTrue(const TComponent& component, const char* name) {
    const FormProperty* property = component.Node().Find(name);
    return property && (property->value.kind == FormValueKind::True || property->value.text == "cbChecked");
}

bool Is(const TComponent& component, const char* name, const char* value) {
    const FormProperty* property = component.Node().Find(name);
    return property && SameText(property->value.text, value);
}

QStringList StringsProperty(const TComponent& component, const char* name) {
    QStringList lines;
    for (const std::string& line : component.GetStrings(name))
        lines << Q(line);
    return lines;
}

void Box(QPainter& painter, const QRect& rect, const QColor& fill) {
    painter.setPen(Line);
    painter.setBrush(fill);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void Text(QPainter& painter, const QRect& rect, const QString& text, int flags = Qt::AlignLeft | Qt::AlignVCenter) {
    painter.setPen(Ink);
    painter.drawText(rect, flags, text);
}

void Lines(QPainter& painter, QRect rect, const QStringList& lines) {
    for (const QString& line : lines) {
        if (rect.height() < LineHeight) return;
        Text(painter, QRect(rect.left(), rect.top(), rect.width(), LineHeight), line);
        rect.setTop(rect.top() + LineHeight);
    }
}

QStringList CollectionTexts(const TComponent& component, const char* property, std::initializer_list<const char*> names) {
    QStringList texts;
    const FormProperty* collection = component.Node().Find(property);
    if (!collection) return texts;
    for (const FormItem& item : collection->value.collection) {
        QString text;
        for (const FormProperty& each : item.properties)
            for (const char* name : names)
                if (text.isEmpty() && SameText(each.name, name)) text = Q(each.value.text);
        texts << text;
    }
    return texts;
}

// --- the classes ---

void DrawLabel(QPainter& painter, const QRect& rect, const TComponent& component) {
    int flags = Is(component, "Alignment", "taCenter")         ? Qt::AlignHCenter
                : Is(component, "Alignment", "taRightJustify") ? Qt::AlignRight
                                                               : Qt::AlignLeft;
    flags |= Is(component, "Layout", "tlCenter") ? Qt::AlignVCenter : Qt::AlignTop;
    if (IsTrue(component, "WordWrap")) flags |= Qt::TextWordWrap;
    // The text is as wide as this screen's font makes it.
    const QRect room = flags & Qt::TextWordWrap || !(flags & Qt::AlignLeft) ? rect : rect.adjusted(0, 0, 60, 4);
    painter.setClipping(flags & Qt::TextWordWrap);
    Text(painter, room, CaptionOf(component), flags);
    painter.setClipping(true);
}

void DrawButton(QPainter& painter, const QRect& rect, const TComponent& component) {
    painter.setPen(IsTrue(component, "Default") ? Ink : Line);
    painter.setBrush(Button);
    painter.drawRoundedRect(rect.adjusted(0, 0, -1, -1), 2, 2);
    Text(painter, rect.adjusted(2, 0, -2, 0), CaptionOf(component), Qt::AlignCenter | Qt::TextWordWrap);
}

void DrawSpeedButton(QPainter& painter, const QRect& rect, const TComponent& component) {
    if (Is(component, "Style", "tbsSeparator") || Is(component, "Style", "tbsDivider")) {
        painter.setPen(Line);
        painter.drawLine(rect.center().x(), rect.top() + 3, rect.center().x(), rect.bottom() - 3);
        return;
    }
    painter.setPen(QColor("#c8c8c8"));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    const QString caption = rect.width() > 36 || component.Node().Find("Caption") ? CaptionOf(component) : QString();
    if (rect.width() > 36) return Text(painter, rect, caption, Qt::AlignCenter);
    painter.setBrush(QColor("#b9cbe0"));
    painter.drawRect(QRect(rect.center() - QPoint(4, 4), QSize(9, 9)));
}

void DrawEdit(QPainter& painter, const QRect& rect, const TComponent& component) {
    Box(painter, rect, Paper);
    Text(painter, rect.adjusted(Pad, 0, -Pad, 0), TextProperty(component, "Text"));
}

void DrawCombo(QPainter& painter, const QRect& rect, const TComponent& component) {
    DrawEdit(painter, rect, component);
    const QRect arrow(rect.right() - 17, rect.top() + 1, 17, rect.height() - 2);
    painter.fillRect(arrow, Button);
    const QPoint middle = arrow.center();
    painter.setBrush(Dim);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygon({middle + QPoint(-4, -2), middle + QPoint(4, -2), middle + QPoint(0, 3)}));
}

void DrawMark(QPainter& painter, const QRect& rect, const TComponent& component, bool round) {
    const QRect mark(rect.left(), rect.center().y() - 6, 12, 12);
    painter.setPen(Dim);
    painter.setBrush(Paper);
    if (round)
        painter.drawEllipse(mark);
    else
        painter.drawRect(mark);
    if (IsTrue(component, "Checked") || IsTrue(component, "State")) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Ink);
        painter.drawEllipse(mark.adjusted(4, 4, -3, -3));
    }
    painter.setClipping(false);
    Text(painter, rect.adjusted(18, 0, 40, 0), CaptionOf(component));
    painter.setClipping(true);
}

void DrawCheckBox(QPainter& painter, const QRect& rect, const TComponent& component) {
    DrawMark(painter, rect, component, false);
}

void DrawRadioButton(QPainter& painter, const QRect& rect, const TComponent& component) {
    DrawMark(painter, rect, component, true);
}

void DrawGroupBox(QPainter& painter, const QRect& rect, const TComponent& component) {
    const QString caption = CaptionOf(component);
    const QRect title(rect.left() + 8, rect.top(), painter.fontMetrics().horizontalAdvance(caption) + 4, 14);
    painter.save();
    painter.setPen(QColor("#c4c4c4"));
    painter.setBrush(Qt::NoBrush);
    if (!caption.isEmpty()) painter.setClipRegion(painter.clipRegion().subtracted(title));
    painter.drawRect(rect.adjusted(0, 7, -1, -1));
    painter.restore();
    Text(painter, title.adjusted(2, 0, 2, 0), caption);
    const QStringList items = component.InheritsFrom("TCustomRadioGroup") ? StringsProperty(component, "Items") : QStringList();
    for (qsizetype i = 0; i < items.size(); ++i) {
        const int step = (rect.height() - 20) / int(items.size());
        const QRect row(rect.left() + 10, rect.top() + 16 + int(i) * step, rect.width() - 12, step);
        painter.setPen(Dim);
        painter.setBrush(Paper);
        painter.drawEllipse(QRect(row.left(), row.center().y() - 6, 12, 12));
        Text(painter, row.adjusted(18, 0, 0, 0), items[i]);
    }
}

void DrawPanel(QPainter& painter, const QRect& rect, const TComponent& component) {
    painter.fillRect(rect, QColor(FormFace));
    if (!Is(component, "BevelOuter", "bvNone")) {
        painter.setPen(QColor("#d0d0d0"));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
    Text(painter, rect, CaptionOf(component), Qt::AlignCenter);
}

void DrawMemo(QPainter& painter, const QRect& rect, const TComponent& component) {
    Box(painter, rect, Paper);
    Text(painter, rect.adjusted(Pad, 2, -Pad, -2), StringsProperty(component, "Lines").join('\n'),
         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap);
}

void DrawListBox(QPainter& painter, const QRect& rect, const TComponent& component) {
    Box(painter, rect, Paper);
    Lines(painter, rect.adjusted(Pad, 2, -Pad, -2), StringsProperty(component, "Items"));
}

void DrawHeads(QPainter& painter, const QRect& rect, const QStringList& heads, int width) {
    int left = rect.left() + 1;
    for (const QString& head : heads) {
        if (left >= rect.right()) break;
        const QRect cell(left, rect.top() + 1, std::min(width, rect.right() - left), 18);
        painter.fillRect(cell, Head);
        painter.setPen(QColor("#cfd4d9"));
        painter.drawLine(cell.topRight(), cell.bottomRight());
        Text(painter, cell.adjusted(Pad, 0, -2, 0), head);
        left += width;
    }
}

void DrawListView(QPainter& painter, const QRect& rect, const TComponent& component) {
    Box(painter, rect, Paper);
    const QStringList heads = CollectionTexts(component, "Columns", {"Caption"});
    if (!heads.isEmpty()) DrawHeads(painter, rect, heads, std::max(60, rect.width() / int(heads.size())));
}

void DrawGrid(QPainter& painter, const QRect& rect, const TComponent& component) {
    Box(painter, rect, Paper);
    painter.setPen(QColor("#dcdcdc"));
    for (int y = rect.top() + 19; y < rect.bottom(); y += 19)
        painter.drawLine(rect.left() + 1, y, rect.right() - 1, y);
    for (int x = rect.left() + 64; x < rect.right(); x += 64)
        painter.drawLine(x, rect.top() + 1, x, rect.bottom() - 1);
    QStringList heads;
    for (const QString& field : CollectionTexts(component, "Columns", {"Title.Caption", "FieldName"}))
        heads << field;
    DrawHeads(painter, rect, heads.isEmpty() ? QStringList{QString()} : heads, 64);
}

void DrawTree(QPainter& painter, const QRect& rect, const TComponent&) {
    Box(painter, rect, Paper);
    painter.setPen(QColor("#c8c8c8"));
    for (int row = 0; row < 3 && rect.height() > 24 + row * 18; ++row) {
        const int x = rect.left() + 8 + (row ? 14 : 0), y = rect.top() + 12 + row * 18;
        painter.drawRect(x, y - 4, 8, 8);
        painter.drawLine(x + 14, y, std::min(x + 70, rect.right() - 4), y);
    }
}

void DrawPages(QPainter& painter, const QRect& rect, const TComponent& component) {
    painter.setPen(QColor("#c4c4c4"));
    painter.setBrush(QColor("#f9f9f9"));
    painter.drawRect(rect.adjusted(0, 21, -1, -1));
    QStringList tabs = StringsProperty(component, "Tabs");
    QStringList names;
    for (const auto& child : component.Node().children) {
        const FormProperty* caption = child->Find("Caption");
        tabs << (caption ? Q(caption->value.text).remove('&') : Q(child->name));
        names << Q(child->name);
    }
    const FormProperty* active = component.Node().Find("ActivePage");
    const qsizetype shown = active ? std::max<qsizetype>(0, names.indexOf(Q(active->value.text))) : 0;
    int left = rect.left() + 2;
    for (qsizetype i = 0; i < tabs.size() && left < rect.right(); ++i) {
        const int width = painter.fontMetrics().horizontalAdvance(tabs[i]) + 14;
        const QRect tab(left, rect.top() + (i == shown ? 0 : 2), width, i == shown ? 22 : 20);
        painter.setPen(QColor("#c4c4c4"));
        painter.setBrush(i == shown ? QColor("#f9f9f9") : Button);
        painter.drawRect(tab);
        Text(painter, tab, tabs[i], Qt::AlignCenter);
        left += width;
    }
}

void DrawStatusBar(QPainter& painter, const QRect& rect, const TComponent& component) {
    painter.setPen(QColor("#d0d0d0"));
    painter.drawLine(rect.topLeft(), rect.topRight());
    const QStringList panels = CollectionTexts(component, "Panels", {"Text"});
    Text(painter, rect.adjusted(Pad, 0, 0, 0), panels.isEmpty() ? TextProperty(component, "SimpleText") : panels.join("   |   "));
}

void DrawBar(QPainter& painter, const QRect& rect, const TComponent&) {
    painter.fillRect(rect, QColor("#f5f5f5"));
    painter.setPen(QColor("#d6d6d6"));
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
}

void DrawImage(QPainter& painter, const QRect& rect, const TComponent&) {
    painter.setPen(QPen(QColor("#b0b0b0"), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.drawLine(rect.topLeft(), rect.bottomRight());
    painter.drawLine(rect.topRight(), rect.bottomLeft());
}

void DrawFrameLine(QPainter& painter, const QRect& rect, const TComponent&) {
    painter.setPen(QColor("#c4c4c4"));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void DrawUpDown(QPainter& painter, const QRect& rect, const TComponent&) {
    Box(painter, rect, Button);
    const int x = rect.center().x(), y = rect.center().y();
    painter.drawLine(rect.left(), y, rect.right() - 1, y);
    painter.setBrush(Dim);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygon({QPoint(x - 3, y - 3), QPoint(x + 3, y - 3), QPoint(x, y - 6)}));
    painter.drawPolygon(QPolygon({QPoint(x - 3, y + 4), QPoint(x + 3, y + 4), QPoint(x, y + 7)}));
}

void DrawProgress(QPainter& painter, const QRect& rect, const TComponent&) {
    Box(painter, rect, QColor("#e6e6e6"));
    painter.fillRect(rect.adjusted(1, 1, -rect.width() * 2 / 3, -1), QColor("#86b98a"));
}

void DrawPage(QPainter& painter, const QRect& rect, const TComponent&) {
    painter.fillRect(rect, QColor("#f9f9f9"));
}

void DrawUnknown(QPainter& painter, const QRect& rect, const TComponent& component) {
    painter.setPen(QPen(QColor("#8fa3b8"), 1, Qt::DashLine));
    painter.setBrush(QColor("#eef3f8"));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    const QString caption = CaptionOf(component);
    painter.setPen(QColor("#4a5f75"));
    painter.drawText(rect.adjusted(3, 1, -3, -1), Qt::AlignLeft | Qt::AlignTop,
                     caption.isEmpty() ? Q(component.Name()) + ": " + Q(component.ClassName()) : caption);
}

struct LookOf {
    const char* className;
    Draw draw;
};
// The first class that the control descends from.
constexpr LookOf ByAncestor[] = {
    {"TCustomLabel", DrawLabel},           {"TCustomStaticText", DrawLabel}, {"TCustomCheckBox", DrawCheckBox},
    {"TRadioButton", DrawRadioButton},     {"TCustomGroupBox", DrawGroupBox}, {"TCustomMemo", DrawMemo},
    {"TCustomRichEdit", DrawMemo},         {"TCustomEdit", DrawEdit},        {"TCustomButton", DrawButton},
    {"TButton", DrawButton},               {"TToolButton", DrawSpeedButton}, {"TSpeedButton", DrawSpeedButton},
    {"TCustomComboBox", DrawCombo},        {"TCustomCombo", DrawCombo},      {"TCustomListBox", DrawListBox},
    {"TCustomListView", DrawListView},     {"TCustomTreeView", DrawTree},    {"TCustomGrid", DrawGrid},
    {"TTabSheet", DrawPage},               {"TPageControl", DrawPages},      {"TCustomTabControl", DrawPages},
    {"TCustomStatusBar", DrawStatusBar},   {"TStatusBar", DrawStatusBar},    {"TToolBar", DrawBar},
    {"TCoolBar", DrawBar},                 {"TControlBar", DrawBar},         {"TImage", DrawImage},
    {"TPaintBox", DrawImage},              {"TBevel", DrawFrameLine},        {"TShape", DrawFrameLine},
    {"TSplitter", DrawBar},                {"TCustomUpDown", DrawUpDown},                {"TProgressBar", DrawProgress},   {"TTrackBar", DrawFrameLine},
    {"TScrollBar", DrawBar},               {"TCustomPanel", DrawPanel},      {"TScrollBox", DrawFrameLine},
    {"TCustomFrame", DrawPanel}};

// Classes that only their names tell of.
constexpr LookOf ByNamePart[] = {{"label", DrawLabel},     {"checkbox", DrawCheckBox}, {"radiobutton", DrawRadioButton},
                                 {"groupbox", DrawGroupBox}, {"memo", DrawMemo},       {"combo", DrawCombo},
                                 {"speedbutton", DrawSpeedButton}, {"bitbtn", DrawButton}, {"button", DrawButton},
                                 {"listbox", DrawListBox}, {"listview", DrawListView}, {"grid", DrawGrid},
                                 {"treeview", DrawTree},   {"pagecontrol", DrawPages}, {"statusbar", DrawStatusBar},
                                 {"panel", DrawPanel},     {"edit", DrawEdit}};

Draw DrawOf(const TComponent& component) {
    for (const LookOf& look : ByAncestor)
        if (component.InheritsFrom(look.className)) return look.draw;
    const QString name = Q(component.ClassName()).toLower();
    for (const LookOf& look : ByNamePart)
        if (name.contains(look.className)) return look.draw;
    return component.Node().kind == FormNodeKind::Inline ? DrawFrameLine : DrawUnknown;
}

// The capitals of the class name, at most three: "TOpenDialog" is "OD".
QString Initials(const QString& className) {
    QString letters;
    for (QChar letter : className.mid(className.startsWith('T') ? 1 : 0))
        if (letter.isUpper() && letters.size() < 3) letters += letter;
    return letters.isEmpty() ? className.left(2) : letters;
}

void DrawIcon(QPainter& painter, const DrawnControl& shape) {
    painter.setPen(QColor("#8fa3b8"));
    painter.setBrush(QColor("#ffffff"));
    painter.drawRoundedRect(shape.rect.adjusted(0, 0, -1, -1), 3, 3);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(9);
    painter.save();
    painter.setFont(font);
    painter.setPen(QColor("#35618f"));
    painter.drawText(shape.rect, Qt::AlignCenter, Initials(Q(shape.component->ClassName())));
    painter.restore();
}

} // namespace

void DrawShape(QPainter& painter, const DrawnControl& shape) {
    painter.save();
    painter.setClipRect(shape.clip);
    if (shape.visual) {
        painter.setClipRect(shape.clip.intersected(shape.rect));
        DrawOf(*shape.component)(painter, shape.rect, *shape.component);
    } else {
        DrawIcon(painter, shape);
    }
    painter.restore();
}

} // namespace glotta
