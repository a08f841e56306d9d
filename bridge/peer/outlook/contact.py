"""Contacts."""

import datetime

from outlook.item import FullItem
from outlook.model import NO_DATE, fields

TITLES = ("Mr.", "Mrs.", "Ms.", "Miss", "Dr.", "Prof.")
NAME_PARTS = ("Title", "FirstName", "MiddleName", "LastName", "Suffix")
TELEPHONES = "Assistant Business Business2 Car CompanyMain Home Home2 Mobile Other Primary Radio".split()
ADDRESSES = {1: "Home", 2: "Business", 3: "Other"}  # OlMailingAddress; 0 is none.
ADDRESS_PARTS = ("", "City", "Country", "PostalCode", "State", "Street")


def _mailing_part(part):
    """Return a property for one part of the address that SelectedMailingAddress names."""

    def read(self) -> str:
        chosen = ADDRESSES.get(self.SelectedMailingAddress)
        return self.value(f"{chosen}Address{part}", "") if chosen else ""

    def write(self, value: str):
        if not self.SelectedMailingAddress:
            self.SelectedMailingAddress = 2
        self.change(f"{ADDRESSES[self.SelectedMailingAddress]}Address{part}", value)

    return property(read, write)


@fields(str, "", " ".join(f"{place}Address{part}" for place in ADDRESSES.values() for part in ADDRESS_PARTS))
@fields(str, "", " ".join(f"{place}TelephoneNumber" for place in TELEPHONES))
@fields(str, "", "BusinessFaxNumber HomeFaxNumber OtherFaxNumber PagerNumber")
@fields(str, "", "Email1Address Email2Address Email3Address BusinessHomePage WebPage")
@fields(str, "", "CompanyName Department FileAs GovernmentIDNumber JobTitle NickName")
@fields(str, "", " ".join(NAME_PARTS))
@fields(int, 0, "SelectedMailingAddress", within=range(4))
@fields(datetime.datetime, NO_DATE, "Birthday Anniversary")
class ContactItem(FullItem):
    """Addresses are kept as they are given, and not taken apart or put together."""

    Class = 40
    message_class = "IPM.Contact"
    home = 10

    @property
    def FullName(self) -> str:
        return " ".join(filter(None, (self.value(part) for part in NAME_PARTS)))

    @FullName.setter
    def FullName(self, value: str):
        words = value.split()
        title = words.pop(0) if words and words[0] in TITLES else ""
        first = words.pop(0) if words else ""
        last = words.pop() if words else ""
        for part, text in zip(NAME_PARTS, (title, first, " ".join(words), last, ""), strict=True):
            self.change(part, text)


for _part in ADDRESS_PARTS:
    setattr(ContactItem, f"MailingAddress{_part}", _mailing_part(_part))
