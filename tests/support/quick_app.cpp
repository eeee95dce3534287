#include "quick_app.h"

#include <cstdio>

namespace qs::test {

std::wstring QuickApp::ItemName(int number) {
    wchar_t text[16];
    std::swprintf(text, 16, L"Item %04d", number);
    return text;
}

std::wstring QuickApp::ItemPath(int group, int number) {
    wchar_t digits[8];
    std::swprintf(digits, 8, L"%04d", number);
    switch (group) {
        case 0:
            return L"C:\\Files\\item" + std::wstring(digits) + L".txt";
        case 1:
            return L"C:\\Folder" + std::wstring(digits);
        case 2:
            return L"C:\\Programs\\item" + std::wstring(digits) + L".exe";
        case 3:
            return L"item" + std::wstring(digits) + L"@example.com";
        default:
            return L"http://item" + std::wstring(digits) + L".example/";
    }
}

void QuickApp::AddItems(int group, int count) {
    for (int n = 1; n <= count; ++n) AddItem(group, ItemName(n), ItemPath(group, n));
}

std::vector<std::wstring> QuickApp::ShownItems() {
    std::vector<std::wstring> shown;
    for (const auto& button : quick().ImageQuick) {
        if (button->Visible()) shown.push_back(button->ToolTipText());
    }
    return shown;
}

std::vector<std::wstring> QuickApp::IndexLabels() {
    std::vector<std::wstring> labels;
    for (const auto& label : quick().LabelQIndex) labels.push_back(label->Caption());
    return labels;
}

}  // namespace qs::test
