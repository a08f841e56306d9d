// The properties of each kind of item, in the order in which their keys are compared.
#pragma once

#include <span>

#include "ZORBOffice/outlook/property.h"

namespace zorboffice {

extern const std::span<const Property> appointment_properties;
extern const std::span<const Property> recurrence_properties;
extern const std::span<const Property> exception_properties;
extern const std::span<const Property> contact_properties;
extern const std::span<const Property> task_properties;
extern const std::span<const Property> email_properties;
extern const std::span<const Property> note_properties;

}  // namespace zorboffice
