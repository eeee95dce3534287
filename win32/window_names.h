#pragma once
// Names by which the program's windows are known, to itself and to a second
// copy looking for the first.
namespace qs::win {

// Class of the borderless top-level windows (the bar among them).
inline constexpr wchar_t kBorderlessClass[] = L"QuillstartBorderless";
// Class of the dialog-like top-level windows.
inline constexpr wchar_t kDialogClass[] = L"QuillstartDialog";
// Class of the child windows that show a picture button.
inline constexpr wchar_t kPictureClass[] = L"QuillstartPicture";
// The bar's window name: the caption of its form.
inline constexpr wchar_t kBarCaption[] = L"Quillstart";
// Sent by a second copy to the first: show the bar and focus its Command box.
inline constexpr wchar_t kSurfaceMessage[] = L"Morvane.Quillstart.Surface";
// Held by the running copy for as long as it lives.
inline constexpr wchar_t kRunningMutex[] = L"Local\\Morvane.Quillstart.Running";

}  // namespace qs::win
