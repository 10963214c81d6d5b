// The flat records of customers, farms and attached files. Each owns copies of all it holds, so it outlives
// the parser that made it. The order of the members is part of what hosts rely on.
#pragma once

#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "isoxmllib/fwd.h"

/// A farm, from `Farm` (element "FRM"). The string of an absent attribute is empty.
struct ISOXML_API IsoFarm {
  /// Copies the attributes; the UUIDs stay empty. `farm` must not be null and may go away afterwards.
  explicit IsoFarm(Farm const* farm);

  std::string uuid;        ///< The UUID that the link list gives to `id`; empty when there is none.
  std::int32_t unset = 0;  ///< Without a source.
  std::string street;
  std::string poBox;
  std::string city;
  std::string comment;
  std::string country;
  std::string county;
  std::string designator;
  std::string email;
  std::string fax;
  std::string firstName;
  std::string growerIdRef;
  std::string growerUuid;  ///< The UUID of `growerIdRef`; empty when there is none.
  std::string id;
  std::string lastName;
  std::string middleName;
  std::string mobile;
  std::string phone;
  std::string postalCode;
  std::string state;
};

/// A customer, from `Grower` (element "CTR"). The string of an absent attribute is empty.
struct ISOXML_API IsoGrower {
  /// Copies the attributes; the UUID stays empty. `grower` must not be null and may go away afterwards.
  explicit IsoGrower(Grower const* grower);

  std::string uuid;        ///< The UUID that the link list gives to `id`; empty when there is none.
  std::int32_t unset = 0;  ///< Without a source.
  std::string street;
  std::string poBox;
  std::string city;
  std::string comment;
  std::string country;
  std::string county;
  std::string customerNumber;
  std::string displayName;
  std::string email;
  std::string fax;
  std::string firstName;
  std::string id;
  std::string lastName;
  std::string middleName;
  std::string mobile;
  std::string phone;
  std::string postalCode;
  std::string state;
};

/// A file beside the set's documents, from `AttachedFile` (element "AFE").
struct IsoAttachedFile {
  std::string fileName;   ///< With its extension, without a directory.
  std::uint8_t type = 0;  ///< 1 for the link list; 2 to 254 for other kinds.
};
