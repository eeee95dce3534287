#include "common/application.h"
#include "common/failure.h"
#include "data/active_family.h"
#include "data/file_channel.h"
#include "data/report_bug.h"

namespace qs {

namespace {

// Reads value `index` of the record and copies it to its working variable.
void ReadValue(FamilyState& f, KinfoldRecord& record, std::int16_t index, RecordReader& reader) {
    switch (index) {
        case 0: record.version = reader.ReadInt16(); break;
        case 1: record.GuruLast = f.GuruLast = reader.ReadInt16(); break;
        case 2: record.FamilyReserved = f.FamilyReserved = reader.ReadInt16(); break;
        case 3: record.UserNickName = f.UserNickName = reader.ReadString(); break;
        case 4: record.UserFirstName = f.UserFirstName = reader.ReadString(); break;
        case 5: record.UserLastName = f.UserLastName = reader.ReadString(); break;
        case 6: record.FamilyExtraA = f.FamilyExtraA = reader.ReadString(); break;
        case 7: record.FamilyExtraB = f.FamilyExtraB = reader.ReadString(); break;
        default: throw SubscriptOutOfRange();
    }
}

// Copies working variable `index` into the record; value 0, the version, has
// none.
void CopyWorkingValue(const FamilyState& f, KinfoldRecord& record, std::int16_t index) {
    switch (index) {
        case 0: break;
        case 1: record.GuruLast = f.GuruLast; break;
        case 2: record.FamilyReserved = f.FamilyReserved; break;
        case 3: record.UserNickName = f.UserNickName; break;
        case 4: record.UserFirstName = f.UserFirstName; break;
        case 5: record.UserLastName = f.UserLastName; break;
        case 6: record.FamilyExtraA = f.FamilyExtraA; break;
        case 7: record.FamilyExtraB = f.FamilyExtraB; break;
        default: throw SubscriptOutOfRange();
    }
}

}  // namespace

void FamAAGetFamilyInfo(Application& app, KinfoldRecord& record) {
    try {
        RecordReader reader(ReadDataFile(app, app.place.FileKinfold));
        for (std::int16_t i = 0; i <= 7; ++i) {
            ReadValue(app.family, record, i, reader);
            if (i == record.version) break;
        }
    } catch (const std::exception&) {
        ReportBug(app, L"FamAAGetFamilyInfo");
    }
}

void FamilyDataAddNew(Application& app, KinfoldRecord& record) {
    try {
        for (std::int32_t i = record.version + 1; i <= 7; ++i)
            CopyWorkingValue(app.family, record, static_cast<std::int16_t>(i));
        record.version = 7;
    } catch (const std::exception&) {
        ReportBug(app, L"FamilyDataAddNew");
    }
}

void FamAASaveFamilyInfo(Application& app) {
    try {
        FamilyState& f = app.family;
        if (f.KinfoldLoaded == f.KinfoldLive) return;
        // At start what was read or filled in wins; later what the user changed.
        if (app.place.StartingUp) {
            f.KinfoldLive = f.KinfoldLoaded;
        } else {
            f.KinfoldLoaded = f.KinfoldLive;
        }
        const KinfoldRecord& r = f.KinfoldLive;
        RecordWriter w;
        w.Integer(7).EndLine();
        w.Integer(r.GuruLast).EndLine().Integer(r.FamilyReserved).EndLine();
        w.String(r.UserNickName).EndLine().String(r.UserFirstName).EndLine().String(r.UserLastName).EndLine();
        w.String(r.FamilyExtraA).EndLine().String(r.FamilyExtraB).EndLine();
        WriteDataFile(app, app.place.FileKinfold, w.Text());
    } catch (const std::exception&) {
        ReportBug(app, L"FamAASaveFamilyInfo");
    }
}

}  // namespace qs
