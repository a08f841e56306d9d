#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    text_property(L"AssistantTelephoneNumber"),
    text_property(L"Body"),
    text_property(L"Business2TelephoneNumber"),
    text_property(L"BusinessAddress"),
    text_property(L"BusinessAddressCity"),
    text_property(L"BusinessAddressCountry"),
    text_property(L"BusinessAddressPostalCode"),
    text_property(L"BusinessAddressState"),
    text_property(L"BusinessAddressStreet"),
    text_property(L"BusinessFaxNumber"),
    {L"BusinesshomePage", L"BusinessHomePage", &as_text, &from_text},  // hosts know this spelling
    text_property(L"BusinessTelephoneNumber"),
    text_property(L"CarTelephoneNumber"),
    text_property(L"CompanyMainTelephoneNumber"),
    text_property(L"CompanyName"),
    text_property(L"Email1Address"),
    text_property(L"Email2Address"),
    text_property(L"Email3Address"),
    text_property(L"FirstName"),
    text_property(L"FullName"),
    text_property(L"GovernmentIDNumber"),
    text_property(L"Home2TelephoneNumber"),
    text_property(L"HomeAddress"),
    text_property(L"HomeAddressCity"),
    text_property(L"HomeAddressCountry"),
    text_property(L"HomeAddressPostalCode"),
    text_property(L"HomeAddressState"),
    text_property(L"HomeAddressStreet"),
    text_property(L"HomeFaxNumber"),
    text_property(L"HomeTelephoneNumber"),
    text_property(L"JobTitle"),
    text_property(L"MailingAddress"),
    text_property(L"MailingAddressCity"),
    text_property(L"MailingAddressCountry"),
    text_property(L"MailingAddressPostalCode"),
    text_property(L"MailingAddressState"),
    text_property(L"MailingAddressStreet"),
    text_property(L"MobileTelephoneNumber"),
    text_property(L"Nickname"),
    text_property(L"OtherAddress"),
    text_property(L"OtherAddressCity"),
    text_property(L"OtherAddressCountry"),
    text_property(L"OtherAddressPostalCode"),
    text_property(L"OtherAddressState"),
    text_property(L"OtherAddressStreet"),
    text_property(L"OtherFaxNumber"),
    text_property(L"OtherTelephoneNumber"),
    text_property(L"PrimaryTelephoneNumber"),
    text_property(L"RadioTelephoneNumber"),
    text_property(L"Title"),
    text_property(L"WebPage"),
    {L"EntryID", L"EntryID", &as_text},
    {L"Folder", L"Parent", &as_name},
    {L"ModifiedDate", L"LastModificationTime", &as_date},
    {L"ModifiedTime", L"LastModificationTime", &as_time},
    {L"SelectedMailingAddress", L"SelectedMailingAddress", &as_decimal},
    // Mobile and radio telephones are not among them.
    {L"AllTelephoneNumbers",
     L"AssistantTelephoneNumber Business2TelephoneNumber BusinessTelephoneNumber CarTelephoneNumber "
     L"CompanyMainTelephoneNumber Home2TelephoneNumber HomeTelephoneNumber OtherTelephoneNumber "
     L"PrimaryTelephoneNumber",
     &as_joined_values},
    {L"AllFaxNumbers", L"BusinessFaxNumber HomeFaxNumber OtherFaxNumber", &as_joined_values},
    {L"AllEmailAddresses", L"Email1Address Email2Address Email3Address", &as_joined_values},
};

}  // namespace

constinit const std::span<const Property> contact_properties = rows;

}  // namespace zorboffice
