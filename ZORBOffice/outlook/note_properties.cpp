#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    text_property(L"Body", says("The note's text, its first line being the subject.")),
    text_property(L"Categories", says("The note's categories, separated as the user's settings have it.")),
    {L"Class", L"Class", says("The item's class: an OlObjectClass number, 44 for a note."), &as_decimal},
    {L"Color", L"Color", says("The colour: blue (0), green (1), pink (2), yellow (3) or white (4)."),
     &as_decimal},
    {L"CreationTime", L"CreationTime", says("The time of day at which the item was made."), &as_time},
    {L"DownloadState", L"DownloadState", says("Whether only the header is here (0) or the whole item (1)."),
     &as_decimal},
    {L"EntryID", L"EntryID", says("The item's identifier, for GetItem."), &as_text},
    {L"Folder", L"Parent", says("The name of the folder that the item is in."), &as_name},
    {L"Height", L"Height", says("Height of the note's window, in pixels."), &as_decimal, &from_int16},
    {L"IsConflict", L"IsConflict", says("Whether the item is in conflict with another copy."), &as_flag},
    {L"ModifiedDate", L"LastModificationTime", says("The day on which the item was last changed."), &as_date},
    {L"ModifiedTime", L"LastModificationTime", says("The time of day at which the item was last changed."),
     &as_time},
    {L"Left", L"Left", says("Distance of the note's window from the left of the screen, in pixels."),
     &as_decimal, &from_int16},
    {L"MarkForDownload", L"MarkForDownload",
     says("Whether the item is to be fetched: an OlRemoteStatus number."), &as_decimal},
    text_property(L"MessageClass", says("The item's message class, IPM.StickyNote.")),
    {L"Parent", L"Parent", says("The name of the folder that the item is in, as Folder."), &as_name},
    {L"Saved", L"Saved", says("Whether nothing was changed since the item was saved."), &as_flag},
    {L"Size", L"Size", says("The size in bytes."), &as_decimal},
    {L"Subject", L"Subject", says("The subject: the text's first line."), &as_text},
    {L"Top", L"Top", says("Distance of the note's window from the top of the screen, in pixels."),
     &as_decimal, &from_int16},
    {L"Width", L"Width", says("Width of the note's window, in pixels."), &as_decimal, &from_int16},
};

}  // namespace

constinit const std::span<const Property> note_properties = rows;

}  // namespace zorboffice
