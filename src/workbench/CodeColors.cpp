#include "workbench/CodeColors.h"

#include "host/FileKeys.h"
#include "platform/Files.h"
#include "workbench/Theme.h"

#include <Qsci/qscilexercpp.h>
#include <Qsci/qscilexerpascal.h>
#include <Qsci/qsciscintilla.h>
#include <QtGui/QFontDatabase>

namespace glotta {
namespace {

enum class Ink { Plain, Comment, Keyword, Text, Number, Directive };

struct Look {
    const char* light;
    const char* dark;
    bool bold, italic;
};
constexpr Look Looks[] = {{"#1f2328", "#d8dee9", false, false}, {"#4f7a28", "#8fb573", false, true},
                          {"#0b4f9e", "#7fb4f0", true, false},  {"#a31515", "#e6a07c", false, false},
                          {"#7a3e9d", "#c9a0e8", false, false}, {"#8a5a00", "#d8b35c", false, false}};

struct StyleInk {
    int style;
    Ink ink;
};
constexpr StyleInk PascalStyles[] = {
    {QsciLexerPascal::Comment, Ink::Comment},       {QsciLexerPascal::CommentParenthesis, Ink::Comment},
    {QsciLexerPascal::CommentLine, Ink::Comment},   {QsciLexerPascal::PreProcessor, Ink::Directive},
    {QsciLexerPascal::PreProcessorParenthesis, Ink::Directive},
    {QsciLexerPascal::Number, Ink::Number},         {QsciLexerPascal::HexNumber, Ink::Number},
    {QsciLexerPascal::Keyword, Ink::Keyword},       {QsciLexerPascal::SingleQuotedString, Ink::Text},
    {QsciLexerPascal::UnclosedString, Ink::Text},   {QsciLexerPascal::Character, Ink::Text},
    {QsciLexerPascal::Asm, Ink::Directive}};
constexpr StyleInk CppStyles[] = {
    {QsciLexerCPP::Comment, Ink::Comment},          {QsciLexerCPP::CommentLine, Ink::Comment},
    {QsciLexerCPP::CommentDoc, Ink::Comment},       {QsciLexerCPP::CommentLineDoc, Ink::Comment},
    {QsciLexerCPP::PreProcessor, Ink::Directive},   {QsciLexerCPP::Number, Ink::Number},
    {QsciLexerCPP::Keyword, Ink::Keyword},          {QsciLexerCPP::KeywordSet2, Ink::Keyword},
    {QsciLexerCPP::DoubleQuotedString, Ink::Text},  {QsciLexerCPP::SingleQuotedString, Ink::Text},
    {QsciLexerCPP::RawString, Ink::Text},           {QsciLexerCPP::UnclosedString, Ink::Text}};

QColor ColorOf(Ink ink, bool dark) {
    const Look& look = Looks[int(ink)];
    return QColor(dark ? look.dark : look.light);
}

QFont CodeFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(10);
    return font;
}

template <std::size_t N>
void SetLooks(QsciLexer& lexer, const StyleInk (&styles)[N], bool dark) {
    const QColor paper = CodePaper(dark);
    lexer.setFont(CodeFont());
    lexer.setDefaultFont(CodeFont());
    lexer.setDefaultPaper(paper);
    lexer.setDefaultColor(ColorOf(Ink::Plain, dark));
    lexer.setPaper(paper);
    lexer.setColor(ColorOf(Ink::Plain, dark));
    for (const StyleInk& style : styles) {
        const Look& look = Looks[int(style.ink)];
        QFont font = CodeFont();
        font.setBold(look.bold);
        font.setItalic(look.italic);
        lexer.setFont(font, style.style);
        lexer.setColor(ColorOf(style.ink, dark), style.style);
    }
}

} // namespace

void SetCodeColors(QsciScintilla& editor, const std::string& fileName) {
    const bool dark = IsDark(editor.palette());
    const auto path = PathFromText(fileName);
    if (IsCppSource(path) || IsHeader(path)) {
        auto* lexer = new QsciLexerCPP(&editor);
        lexer->setFoldComments(true);
        editor.setLexer(lexer);
        SetLooks(*lexer, CppStyles, dark);
    } else {
        auto* lexer = new QsciLexerPascal(&editor);
        lexer->setFoldComments(true);
        lexer->setSmartHighlighting(true);
        editor.setLexer(lexer);
        SetLooks(*lexer, PascalStyles, dark);
    }
    const QPalette palette = editor.palette();
    editor.setCaretForegroundColor(ColorOf(Ink::Plain, dark));
    editor.setCaretLineBackgroundColor(dark ? QColor("#2a3038") : QColor("#f2f6fb"));
    editor.setSelectionBackgroundColor(palette.color(QPalette::Highlight));
    editor.setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
    editor.setMarginsFont(CodeFont());
    editor.setMarginsBackgroundColor(palette.color(QPalette::Window));
    editor.setMarginsForegroundColor(palette.color(QPalette::Disabled, QPalette::WindowText));
    editor.setFoldMarginColors(palette.color(QPalette::Window), palette.color(QPalette::Window));
    editor.setMatchedBraceBackgroundColor(dark ? QColor("#3d5a80") : QColor("#cfe3f7"));
    editor.setMatchedBraceForegroundColor(ColorOf(Ink::Plain, dark));
    editor.setUnmatchedBraceForegroundColor(ColorOf(Ink::Text, dark));
}

} // namespace glotta
