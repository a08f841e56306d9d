#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

constexpr Property rows[] = {
    text_property(L"AssistantTelephoneNumber", says("Telephone number of the assistant.")),
    text_property(L"Body", says("Notes on the contact.")),
    text_property(L"Business2TelephoneNumber", says("Second telephone number at work.")),
    text_property(L"BusinessAddress", says("Address at work, whole.")),
    text_property(L"BusinessAddressCity", says("City of the address at work.")),
    text_property(L"BusinessAddressCountry", says("Country of the address at work.")),
    text_property(L"BusinessAddressPostalCode", says("Postal code of the address at work.")),
    text_property(L"BusinessAddressState", says("State of the address at work.")),
    text_property(L"BusinessAddressStreet", says("Street of the address at work.")),
    text_property(L"BusinessFaxNumber", says("Fax number at work.")),
    {L"BusinesshomePage", L"BusinessHomePage", says("Web page of the business; the key has a small h."),
     &as_text, &from_text},  // hosts know this spelling
    text_property(L"BusinessTelephoneNumber", says("Telephone number at work.")),
    text_property(L"CarTelephoneNumber", says("Telephone number in the car.")),
    text_property(L"CompanyMainTelephoneNumber", says("Main telephone number of the company.")),
    text_property(L"CompanyName", says("Name of the company.")),
    text_property(L"Email1Address", says("First mail address.")),
    text_property(L"Email2Address", says("Second mail address.")),
    text_property(L"Email3Address", says("Third mail address.")),
    text_property(L"FirstName", says("First name.")),
    text_property(L"FullName", says("Whole name.")),
    text_property(L"GovernmentIDNumber", says("Number of an identity document.")),
    text_property(L"Home2TelephoneNumber", says("Second telephone number at home.")),
    text_property(L"HomeAddress", says("Address at home, whole.")),
    text_property(L"HomeAddressCity", says("City of the address at home.")),
    text_property(L"HomeAddressCountry", says("Country of the address at home.")),
    text_property(L"HomeAddressPostalCode", says("Postal code of the address at home.")),
    text_property(L"HomeAddressState", says("State of the address at home.")),
    text_property(L"HomeAddressStreet", says("Street of the address at home.")),
    text_property(L"HomeFaxNumber", says("Fax number at home.")),
    text_property(L"HomeTelephoneNumber", says("Telephone number at home.")),
    text_property(L"JobTitle", says("Job title.")),
    text_property(L"MailingAddress", says("The address that mail goes to, whole.")),
    text_property(L"MailingAddressCity", says("City of the address that mail goes to.")),
    text_property(L"MailingAddressCountry", says("Country of the address that mail goes to.")),
    text_property(L"MailingAddressPostalCode", says("Postal code of the address that mail goes to.")),
    text_property(L"MailingAddressState", says("State of the address that mail goes to.")),
    text_property(L"MailingAddressStreet", says("Street of the address that mail goes to.")),
    text_property(L"MobileTelephoneNumber", says("Number of the mobile telephone.")),
    text_property(L"Nickname", says("Nickname.")),
    text_property(L"OtherAddress", says("Another address, whole.")),
    text_property(L"OtherAddressCity", says("City of the other address.")),
    text_property(L"OtherAddressCountry", says("Country of the other address.")),
    text_property(L"OtherAddressPostalCode", says("Postal code of the other address.")),
    text_property(L"OtherAddressState", says("State of the other address.")),
    text_property(L"OtherAddressStreet", says("Street of the other address.")),
    text_property(L"OtherFaxNumber", says("Another fax number.")),
    text_property(L"OtherTelephoneNumber", says("Another telephone number.")),
    text_property(L"PrimaryTelephoneNumber", says("The telephone number to try first.")),
    text_property(L"RadioTelephoneNumber", says("Number of the radio telephone.")),
    text_property(L"Title", says("Title before the name, as Dr.")),
    text_property(L"WebPage", says("Web page.")),
    {L"EntryID", L"EntryID", says("The item's identifier, for GetItem."), &as_text},
    {L"Folder", L"Parent", says("The name of the folder that the item is in."), &as_name},
    {L"ModifiedDate", L"LastModificationTime", says("The day on which the item was last changed."), &as_date},
    {L"ModifiedTime", L"LastModificationTime", says("The time of day at which the item was last changed."),
     &as_time},
    {L"SelectedMailingAddress", L"SelectedMailingAddress",
     says("Which address mail goes to: none (0), home (1), work (2) or the other (3)."), &as_decimal},
    // Mobile and radio telephones are not among them.
    {L"AllTelephoneNumbers",
     L"AssistantTelephoneNumber Business2TelephoneNumber BusinessTelephoneNumber CarTelephoneNumber "
     L"CompanyMainTelephoneNumber Home2TelephoneNumber HomeTelephoneNumber OtherTelephoneNumber "
     L"PrimaryTelephoneNumber",
     says("Nine telephone numbers in one text, without those of mobile and radio telephones."),
     &as_joined_values},
    {L"AllFaxNumbers", L"BusinessFaxNumber HomeFaxNumber OtherFaxNumber",
     says("The three fax numbers in one text."), &as_joined_values},
    {L"AllEmailAddresses", L"Email1Address Email2Address Email3Address",
     says("The three mail addresses in one text."), &as_joined_values},
};

}  // namespace

constinit const std::span<const Property> contact_properties = rows;

}  // namespace zorboffice
