// Files and standard streams of the host.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// The whole content; nothing when the file cannot be read, with the platform's reason in LastErrorText().
std::optional<std::string> ReadWholeFile(const std::wstring& name);

// Replaces the content. False when that failed, with the reason in LastErrorText().
bool WriteWholeFile(const std::wstring& name, std::string_view bytes);

// The platform's text for the last error of the calling thread, in one line.
std::wstring LastErrorText();

enum class Stream { Output, Error };

// Writes a text with line feeds: in a console as Unicode, whatever its code page, in a pipe or file as UTF-8.
void Print(Stream stream, std::wstring_view text);

}  // namespace host
