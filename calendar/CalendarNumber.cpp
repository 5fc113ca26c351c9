#include "calendar/CalendarNumber.h"

namespace calvoro {

bool CalendarCodeOfTag(CalendarNumber tag, DateRecord& record) {
    switch (tag) {
        case CalendarNumber::CE:
        case CalendarNumber::ORD: record.calendar = CalendarCode::G; return true;
        case CalendarNumber::JC: record.calendar = CalendarCode::J; return true;
        case CalendarNumber::AN: record.calendar = CalendarCode::A; return true;
        case CalendarNumber::VLW: record.calendar = CalendarCode::V; return true;
        case CalendarNumber::ISO: record.calendar = CalendarCode::I; return true;
        case CalendarNumber::JDN:
        case CalendarNumber::LPW:
        case CalendarNumber::LPM:
        case CalendarNumber::ARC: return false;
    }
    return false;
}

}  // namespace calvoro
