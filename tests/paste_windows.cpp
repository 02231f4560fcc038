// SPDX-License-Identifier: MIT
//
// Another program, for tests of the clipboard of Windows: prints the text that is on it, in UTF-8.
// What it is called with is for the one that other systems have.
#include <windows.h>

#include <cstdio>
#include <string>

int main()
{
    // Windows itself has it open for a moment after a change.
    for (int tries = 1; OpenClipboard(nullptr) == 0; ++tries) {
        if (tries == 100) {
            std::puts("the clipboard can't be opened");
            return 1;
        }
        Sleep(50);
    }
    const auto *const text = static_cast<const wchar_t *>(GetClipboardData(CF_UNICODETEXT));
    std::string bytes;
    if (text != nullptr) {
        const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
        bytes.resize(size_t(size));
        WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
        bytes.pop_back(); // the end of the text
    }
    CloseClipboard();
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() ? 0 : 1;
}
