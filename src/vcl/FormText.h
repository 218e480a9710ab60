// Text forms ('object Form1: TForm1' ... 'end').
#pragma once
#include "vcl/FormFile.h"

namespace glotta {

// Nodes and values may stand this deep in each other.
inline constexpr int MaxFormDepth = 200;
std::unique_ptr<FormNode> NodeOf(FormHead head);

std::unique_ptr<FormNode> ReadFormText(std::string_view bytes, FormShape& shape);
FormHead ReadFormTextHead(std::string_view bytes, const FormShape& shape);
std::string WriteFormText(const FormNode& root, const FormShape& shape);

} // namespace glotta
