#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    text_property(L"Body"),
    text_property(L"Categories"),
    {L"Class", L"Class", &as_decimal},
    {L"Color", L"Color", &as_decimal},
    {L"CreationTime", L"CreationTime", &as_time},
    {L"DownloadState", L"DownloadState", &as_decimal},
    {L"EntryID", L"EntryID", &as_text},
    {L"Folder", L"Parent", &as_name},
    {L"Height", L"Height", &as_decimal, &from_int16},
    {L"IsConflict", L"IsConflict", &as_flag},
    {L"ModifiedDate", L"LastModificationTime", &as_date},
    {L"ModifiedTime", L"LastModificationTime", &as_time},
    {L"Left", L"Left", &as_decimal, &from_int16},
    {L"MarkForDownload", L"MarkForDownload", &as_decimal},
    text_property(L"MessageClass"),
    {L"Parent", L"Parent", &as_name},
    {L"Saved", L"Saved", &as_flag},
    {L"Size", L"Size", &as_decimal},
    {L"Subject", L"Subject", &as_text},
    {L"Top", L"Top", &as_decimal, &from_int16},
    {L"Width", L"Width", &as_decimal, &from_int16},
};

}  // namespace

constinit const std::span<const Property> note_properties = rows;

}  // namespace zorboffice
