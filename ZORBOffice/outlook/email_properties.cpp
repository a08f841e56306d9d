#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    {L"Attachment Count", L"Attachments", &as_count},
    {L"Attachments", L"Attachments", &as_display_names},
    {L"BCC", L"BCC", &as_text},
    {L"Body", L"Body", &as_text},
    {L"CC", L"CC", &as_text},
    {L"Class", L"Class", &as_decimal},
    {L"EntryID", L"EntryID", &as_text},
    {L"HTMLBody", L"HTMLBody", &as_text},
    {L"Importance", L"Importance", &as_decimal},
    {L"Parent", L"Parent", &as_name},
    {L"ReceivedDate", L"ReceivedTime", &as_date},
    {L"ReceivedTime", L"ReceivedTime", &as_time},
    {L"Recipients", L"Recipients", &as_names},
    {L"SenderEmailAddress", L"SenderEmailAddress", &as_text},
    {L"SenderName", L"SenderName", &as_text},
    {L"Sensitivity", L"Sensitivity", &as_decimal},
    {L"Size", L"Size", &as_decimal},
    {L"Subject", L"Subject", &as_text},
    {L"To", L"To", &as_text},
};

}  // namespace

constinit const std::span<const Property> email_properties = rows;

}  // namespace zorboffice
