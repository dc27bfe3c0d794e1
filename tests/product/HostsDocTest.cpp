// docs/hosts.md: what no compiler looks at. Its examples in C and C++ are compiled and run by the tests of the host;
// the one in C# is compared here with the header and with the library.
#include <windows.h>

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "NemPdfUI.hpp"
#include "support/SourceDocument.h"

namespace {

using Types = std::vector<std::string>;  // of a function's parameters, in order

std::string Trimmed(const std::string& text) {
  const size_t begin = text.find_first_not_of(" \n");
  return begin == text.npos ? "" : text.substr(begin, text.find_last_not_of(" \n") - begin + 1);
}

// "const wchar_t* name, int32_t size" as "const wchar_t*" and "int32_t".
Types TypesOf(const std::string& parameters) {
  Types types;
  if (Trimmed(parameters).empty() || Trimmed(parameters) == "void") return types;
  for (size_t begin = 0, end; begin <= parameters.size(); begin = end + 1) {
    end = std::min(parameters.find(',', begin), parameters.size());
    const std::string parameter = Trimmed(parameters.substr(begin, end - begin));
    types.push_back(parameter.substr(0, parameter.rfind(' ')));
  }
  return types;
}

struct Declaration {
  std::string name;
  Types types;
};

std::vector<Declaration> Declarations(const std::string& text, const std::string& pattern) {
  std::vector<Declaration> declarations;
  const std::regex declaration(pattern);
  for (std::sregex_iterator it(text.begin(), text.end(), declaration), end; it != end; ++it)
    declarations.push_back({(*it)[1], TypesOf((*it)[2])});
  return declarations;
}

std::map<std::string, Types> HeaderFunctions() {
  std::map<std::string, Types> functions;
  for (const Declaration& declaration :
       Declarations(SourceDocument("include/NemPdfUI.h").Text(), R"(\nNEMPDFUI_API int (\w+)\(([^)]*)\);)"))
    functions[declaration.name] = declaration.types;
  return functions;
}

// What C# passes for a type of the header.
const std::map<std::string, std::set<std::string>> kFitting = {
    {"NemPdfUIHandle", {"IntPtr"}},
    {"NemPdfUIHandle*", {"out IntPtr", "ref IntPtr"}},
    {"int32_t", {"int"}},
    {"uint32_t*", {"out uint"}},
    {"const wchar_t*", {"string"}},
    {"const void*", {"ref int", "string"}},
    {"void*", {"out int", "[Out] char[]"}},
};

const std::string& Document() {
  static const std::string document = SourceDocument("docs/hosts.md").Text();
  return document;
}

TEST(HostsDocument, DeclaresInCSharpWhatTheLibraryExports) {
  const std::map<std::string, Types> functions = HeaderFunctions();
  ASSERT_EQ(9u, functions.size());
  const std::vector<Declaration> declarations =
      Declarations(Document(), R"(private static extern int (\w+)\(([^)]*)\);)");
  std::set<std::string> declared;
  for (const Declaration& declaration : declarations) {
    declared.insert(declaration.name);
    EXPECT_NE(nullptr, GetProcAddress(GetModuleHandleW(L"NemPdfUI64.dll"), declaration.name.c_str()))
        << declaration.name;
    const auto function = functions.find(declaration.name);
    ASSERT_NE(functions.end(), function) << declaration.name;
    ASSERT_EQ(function->second.size(), declaration.types.size()) << declaration.name;
    for (size_t i = 0; i < declaration.types.size(); ++i) {
      const auto fitting = kFitting.find(function->second[i]);
      ASSERT_NE(kFitting.end(), fitting) << function->second[i];
      EXPECT_TRUE(fitting->second.contains(declaration.types[i])) << declaration.name << ": " << declaration.types[i];
    }
  }
  // All but the A forms, and the get and set function in two forms.
  EXPECT_EQ(7u, declared.size());
  EXPECT_EQ(9u, declarations.size());
}

// Each declaration stands behind an attribute of its own; those with texts say how these are passed.
TEST(HostsDocument, MarshalsTextsAsWideOnes) {
  const std::regex import(R"(\[DllImport\(Library, ExactSpelling = true(, CharSet = CharSet\.Unicode)?\)\]\n)"
                          R"( +private static extern int \w+\(([^)]*)\);)");
  int count = 0;
  for (std::sregex_iterator it(Document().begin(), Document().end(), import), end; it != end; ++it, ++count) {
    const std::string parameters = (*it)[2];
    const bool hasText = parameters.find("string") != parameters.npos || parameters.find("char[]") != parameters.npos;
    EXPECT_EQ(hasText, (*it)[1].matched) << parameters;
  }
  EXPECT_EQ(9, count);
  EXPECT_NE(Document().npos, Document().find("private const string Library = \"NemPdfUI64.dll\";"));
}

TEST(HostsDocument, NamesInCSharpPropertiesThatThereAre) {
  const std::map<std::string, int32_t> sets = {
      {"General", NEMPDFUI_GENERAL}, {"Basic", NEMPDFUI_SETTINGS}, {"Document", NEMPDFUI_DOCUMENT}};
  EXPECT_NE(Document().npos, Document().find("public const int General = -1, Basic = 0, Document = 1;"));
  const std::regex use(R"x(NemPdfDialog\.(\w+), "(\w+)")x");
  int count = 0;
  for (std::sregex_iterator it(Document().begin(), Document().end(), use), end; it != end; ++it, ++count) {
    const std::string name = (*it)[2];
    ASSERT_TRUE(sets.contains((*it)[1])) << it->str();
    EXPECT_NE(nullptr, nempdf::FindProperty(sets.at((*it)[1]), std::wstring(name.begin(), name.end()))) << it->str();
  }
  EXPECT_EQ(6, count);
}

// Code that nobody compiles goes stale: each block is an example with a name.
TEST(HostsDocument, HasNoCodeWithoutATest) {
  for (const char* document : {"docs/hosts.md", "README.md"}) {
    const std::string text = SourceDocument(document).Text();
    const std::regex fence(R"((<!-- example: ([\w.]+) -->\n\n)?```(\w+)\n)");
    int count = 0;
    for (std::sregex_iterator it(text.begin(), text.end(), fence), end; it != end; ++it, ++count) {
      const std::string name = (*it)[2], language = (*it)[3];
      EXPECT_TRUE((language == "c" && name.ends_with(".c")) || (language == "cpp" && name.ends_with(".cpp")) ||
                  (language == "csharp" && name == "Host.cs"))
          << document << ": " << it->str();
    }
    EXPECT_GT(count, 0) << document;
  }
}

// The sets, the numbers and the names that the text itself gives.
TEST(HostsDocument, GivesTheNumbersOfTheHeader) {
  EXPECT_NE(Document().npos, Document().find("| -1 | `NEMPDFUI_GENERAL` | `nempdf::general::...` | six values"));
  EXPECT_NE(Document().npos, Document().find("| 0 | `NEMPDFUI_SETTINGS` | `nempdf::Tab::Basic` | 123 settings"));
  EXPECT_NE(Document().npos, Document().find("| 1 | `NEMPDFUI_DOCUMENT` | `nempdf::Tab::Document` |"));
  static_assert(NEMPDFUI_GENERAL == -1 && NEMPDFUI_SETTINGS == 0 && NEMPDFUI_DOCUMENT == 1);
  static_assert(NEMPDFUI_BAD_HANDLE == 2);
  EXPECT_EQ(6u, std::size(nempdf::kGeneralProperties));
  EXPECT_EQ(123u, std::size(nempdf::kSettings));
  for (const nempdf::PropertyInfo& property : nempdf::kSettings) {
    if (property.kind != nempdf::Kind::Secret) continue;
    const std::wstring_view name(property.name);
    EXPECT_NE(Document().npos, Document().find("`" + std::string(name.begin(), name.end()) + "`"));
  }
}

}  // namespace
