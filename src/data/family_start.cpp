#include "common/application.h"
#include "common/failure.h"
#include "data/active_family.h"
#include "data/report_bug.h"

namespace qs {

namespace {

std::wstring TwoDigits(std::int32_t value) {
    std::wstring text = std::to_wstring(value);
    return text.size() < 2 ? L"0" + text : text;
}

std::int32_t DigitsToLong(const std::wstring& digits) {
    long long value = 0;
    for (wchar_t c : digits) {
        if (c < L'0' || c > L'9') throw TypeMismatch();
        value = value * 10 + (c - L'0');
        if (value > INT32_MAX) throw Overflow();
    }
    return static_cast<std::int32_t>(value);
}

}  // namespace

std::int32_t FamilyDateToLong(Application& app, const CalendarDate& date) {
    try {
        // "2", the year's first and last digits, day, month, the year's two
        // middle digits.
        const std::wstring year = std::to_wstring(date.year);
        const std::wstring text = L"2" + year.substr(0, 1) + year.substr(year.size() - 1) + TwoDigits(date.day) +
                                  TwoDigits(date.month) + year.substr(1, 2);
        return DigitsToLong(text);
    } catch (const std::exception&) {
        ReportBug(app, L"FamilyDateToLong");
        return 0;
    }
}

bool FamilyStart(Application& app) {
    bool joined = false;
    try {
        FamilyState& f = app.family;
        f.TodayLong = FamilyDateToLong(app, app.sys.Today());
        f.SelfIndex = -1;
        app.FamilyMemberCount = -1;
        f.FamilyReserved = -1;
        f.SelfFound = false;
        f.ProgramMoved = false;
        f.GuruNeedsRewrite = false;
        bool guruRead = false;
        if (app.sys.FileExists(app.place.FileKinfold)) {
            FamAAGetFamilyInfo(app, f.KinfoldLoaded);
            if (f.KinfoldLoaded.version < 7) FamilyDataAddNew(app, f.KinfoldLoaded);
            if (app.sys.FileExists(app.place.FileGuru) && f.GuruLast >= 0) {
                app.FamilyMemberCount = FamABGetGuruInfo(app, f.GuruLast);
                guruRead = true;
            }
            if (f.SelfFound) f.KinfoldLive = f.KinfoldLoaded;
        }
        if (!f.SelfFound) {
            joined = true;
            // Without a member list read, the program joins behind GuruLast.
            std::int16_t joinBehind = guruRead ? app.FamilyMemberCount : f.GuruLast;
            app.FamilyMemberCount = InFamilyAddMe(app, joinBehind);
            app.message.MessageBeforeMainWindow = true;
            app.MessageToShow = L"MessageGetUserName";
            MessageProcess(app);
            app.message.MessageBeforeMainWindow = false;
            f.KinfoldLoaded = KinfoldRecord{7, app.FamilyMemberCount, -1, f.UserNickName, f.UserFirstName,
                                            f.UserLastName, L"", L""};
        }
        FamAASaveFamilyInfo(app);
        if (joined || f.ProgramMoved || f.GuruNeedsRewrite) FamABSaveGuruInfo(app);
    } catch (const std::exception&) {
        ReportBug(app, L"FamilyStart");
    }
    return joined;
}

}  // namespace qs
