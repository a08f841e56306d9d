#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    {L"Attachment Count", L"Attachments", says("How many attachments there are."), &as_count},
    {L"Attachments", L"Attachments", says("The names of the attachments."), &as_display_names},
    {L"BCC", L"BCC", says("Who gets a copy unseen by the others."), &as_text},
    {L"Body", L"Body", says("The mail's text without formatting."), &as_text},
    {L"CC", L"CC", says("Who gets a copy."), &as_text},
    {L"Class", L"Class", says("The item's class: an OlObjectClass number, 43 for a mail."), &as_decimal},
    {L"EntryID", L"EntryID", says("The item's identifier, for GetItem."), &as_text},
    {L"HTMLBody", L"HTMLBody", says("The mail's text as HTML."), &as_text},
    {L"Importance", L"Importance", says("How important it is: low (0), normal (1) or high (2)."),
     &as_decimal},
    {L"Parent", L"Parent", says("The name of the folder that the item is in."), &as_name},
    {L"ReceivedDate", L"ReceivedTime", says("The day on which the mail came."), &as_date},
    {L"ReceivedTime", L"ReceivedTime", says("The time of day at which the mail came."), &as_time},
    {L"Recipients", L"Recipients", says("The names of all recipients."), &as_names},
    {L"SenderEmailAddress", L"SenderEmailAddress", says("The sender's mail address."), &as_text},
    {L"SenderName", L"SenderName", says("The sender's name."), &as_text},
    {L"Sensitivity", L"Sensitivity",
     says("Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3)."),
     &as_decimal},
    {L"Size", L"Size", says("The size in bytes."), &as_decimal},
    {L"Subject", L"Subject", says("The subject."), &as_text},
    {L"To", L"To", says("The recipients."), &as_text},
};

}  // namespace

constinit const std::span<const Property> email_properties = rows;

}  // namespace zorboffice
