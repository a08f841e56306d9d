// The three classes as the programs of the build need them, where there is no library yet to read from.
#pragma once

#include "ZORBOffice/surface/published_classes.h"

namespace zorboffice {

struct Class {
  const PublishedClass& published;
  const IID& default_interface_id;
  const IID& event_interface_id;
  const char* sentence;
};

inline constexpr Class classes[] = {
    {zorb_word_class, zorb_word_interface_id, zorb_word_events_id,
     "Drives Microsoft Word: opens and writes documents, searches them, prints and saves them."},
    {zorb_outlook_class, zorb_outlook_interface_id, zorb_outlook_events_id,
     "Drives Microsoft Outlook: walks, reads and writes its items, and makes mails."},
    {open_writer_class, open_writer_interface_id, open_writer_events_id,
     "Drives an office suite with the members of ZORBWord: opens, reads and searches documents."},
};

}  // namespace zorboffice
