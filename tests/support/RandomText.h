// Texts that a grammar may stumble over, the same in every run.
#pragma once

#include <random>
#include <string>
#include <string_view>

class RandomText {
 public:
  // Takes its characters from `usual` and from letters of several scripts, right-to-left ones and pairs of surrogates
  // among them.
  explicit RandomText(std::wstring_view usual) : usual_(usual) {}

  std::wstring Next(int maxLength) {
    std::wstring text;
    for (int length = Number(0, maxLength); length > 0; --length) AppendCharacter(text);
    return text;
  }
  int Number(int from, int to) { return std::uniform_int_distribution(from, to)(generator_); }

 private:
  void AppendCharacter(std::wstring& text) {
    constexpr std::wstring_view kLetters = L"aZ9\u00E4\u00DF\u05D0\u05E9\u0627\u0644\u0639\u200F\u202E\u4E2D";
    switch (Number(0, 4)) {
      case 0:
        text += L"\U0001F5CE";
        break;
      case 1:
        text += kLetters[static_cast<size_t>(Number(0, static_cast<int>(kLetters.size()) - 1))];
        break;
      default:
        text += usual_[static_cast<size_t>(Number(0, static_cast<int>(usual_.size()) - 1))];
    }
  }

  std::wstring_view usual_;
  std::mt19937 generator_{20240229};
};
