#include <algorithm>
#include <string_view>

#include "common/application.h"
#include "common/text_case.h"
#include "data/active_family.h"
#include "data/file_channel.h"
#include "data/list_files.h"
#include "data/report_bug.h"
#include "data/write_on_failure.h"

namespace qs {

namespace {

FamilyMember ReadMember(RecordReader& reader) {
    FamilyMember m;
    m.MemberName = reader.ReadString();
    m.MemberTag = reader.ReadString();
    m.MemberDate = reader.ReadInt32();
    m.MemberFolder = reader.ReadString();
    return m;
}

void PutMember(Application& app, std::int16_t position, FamilyMember member) {
    const auto slot = static_cast<std::size_t>(position);
    if (app.FamilyMembers.size() <= slot) app.FamilyMembers.resize(slot + 1);
    app.FamilyMembers[slot] = std::move(member);
}

}  // namespace

std::int16_t FamABGetGuruInfo(Application& app, std::int16_t& lastIndex) {
    try {
        FamilyState& f = app.family;
        RecordReader reader(ReadDataFile(app, app.place.FileGuru));
        std::int16_t count = -1;
        const std::wstring drive = UCase(app.ProgramFolder.substr(0, 1));
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            FamilyMember m = ReadMember(reader);
            if (m.MemberFolder.empty() || m.MemberName.empty()) break;
            const bool own = m.MemberName == SelfMemberName;
            if (app.place.OnRemovable) {
                const std::wstring first = UCase(m.MemberFolder.substr(0, 1));
                // The own record should carry "#" on a flash drive.
                if (own && first == drive) f.GuruNeedsRewrite = true;
                if (first == L"#") m.MemberFolder = drive + m.MemberFolder.substr(1);
            }
            m.MemberProgramFile = m.MemberFolder + m.MemberName + L".exe";
            // A member whose program has gone is dropped.
            if (!app.sys.FileExists(m.MemberProgramFile)) continue;
            count = ToInt16(count + 1);
            if (own) {
                f.SelfFound = true;
                f.SelfIndex = count;
                if (m.MemberFolder != app.ProgramFolder) {
                    f.ProgramMoved = true;
                    m.MemberFolder = app.ProgramFolder;
                    m.MemberProgramFile = app.ProgramFile;
                }
            }
            PutMember(app, count, std::move(m));
        }
        app.FamilyMembers.resize(static_cast<std::size_t>(count + 1));
        return count;
    } catch (const std::exception&) {
        ReportBug(app, L"FamABGetGuruInfo");
        // The routine then answers 0: position 0 stays in use.
        if (app.FamilyMembers.empty()) app.FamilyMembers.resize(1);
        return 0;
    }
}

std::int16_t InFamilyAddMe(Application& app, std::int16_t& lastIndex) {
    try {
        const std::int16_t self = ToInt16(static_cast<long long>(lastIndex) + 1);
        if (self < 0) throw SubscriptOutOfRange();
        app.family.SelfIndex = self;
        app.FamilyMembers.resize(static_cast<std::size_t>(self) + 1);
        app.FamilyMembers[static_cast<std::size_t>(self)] =
            FamilyMember{SelfMemberName, SelfMemberTag, app.family.TodayLong, app.ProgramFolder, app.ProgramFile};
        return self;
    } catch (const std::exception&) {
        ReportBug(app, L"InFamilyAddMe");
        // The routine then answers 0: position 0 is kept in existence.
        if (app.FamilyMembers.empty()) app.FamilyMembers.resize(1);
        return 0;
    }
}

namespace {

// The characters a member list's file takes, at most: the members' texts,
// and per line six quotes, three commas, a date of up to eleven characters
// and the line end.
std::size_t GuruFileLength(const Application& app) {
    const std::size_t count =
        std::min(app.FamilyMembers.size(), static_cast<std::size_t>(std::max<int>(app.FamilyMemberCount + 1, 0)));
    std::size_t length = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const FamilyMember& m = app.FamilyMembers[i];
        length += m.MemberName.size() + m.MemberTag.size() + m.MemberFolder.size() + 22;
    }
    return length;
}

}  // namespace

void FamABSaveGuruInfo(Application& app) {
    RecordWriter writer;
    bool writing = false;
    try {
        writing = true;
        writer.Reserve(GuruFileLength(app));
        std::wstring flashFolder;
        for (std::int16_t i = 0; i <= app.FamilyMemberCount; i = NextIndex(i)) {
            const FamilyMember& m = app.FamilyMembers.at(static_cast<std::size_t>(i));
            std::wstring_view folder = m.MemberFolder;
            // On a flash drive "#" stands for the drive letter.
            if (app.place.OnRemovable && !folder.empty() &&
                UCase(m.MemberFolder.substr(0, 1)) == app.place.ProgramDriveLetterUpper) {
                flashFolder.assign(folder);
                flashFolder[0] = L'#';
                folder = flashFolder;
            }
            writer.String(m.MemberName).String(m.MemberTag).Integer(m.MemberDate).String(folder).EndLine();
        }
        writing = false;
        WriteDataFile(app, app.place.FileGuru, writer.Text());
    } catch (const std::exception&) {
        if (writing) KeepWhatWasWritten(app, app.place.FileGuru, writer);
        ReportBug(app, L"FamABSaveGuruInfo");
    }
}

}  // namespace qs
