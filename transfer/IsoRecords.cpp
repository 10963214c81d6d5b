#include "transfer/IsoRecords.h"

#include "isoxmllib/master_data.h"

// An absent attribute is told by its flag: unsetting one clears the flag and leaves the text.

IsoFarm::IsoFarm(Farm const* farm) : designator(farm->GetDesignator()), id(farm->GetId()) {
  if (farm->IssetStreet()) street = farm->GetStreet();
  if (farm->IssetPOBox()) poBox = farm->GetPOBox();
  if (farm->IssetCity()) city = farm->GetCity();
  if (farm->IssetComment()) comment = farm->GetComment();
  if (farm->IssetCountry()) country = farm->GetCountry();
  if (farm->IssetCounty()) county = farm->GetCounty();
  if (farm->IssetEmail()) email = farm->GetEmail();
  if (farm->IssetFax()) fax = farm->GetFax();
  if (farm->IssetFirstName()) firstName = farm->GetFirstName();
  if (farm->IssetGrowerIdRef()) growerIdRef = farm->GetGrowerIdRef();
  if (farm->IssetLastName()) lastName = farm->GetLastName();
  if (farm->IssetMiddleName()) middleName = farm->GetMiddleName();
  if (farm->IssetMobile()) mobile = farm->GetMobile();
  if (farm->IssetPhone()) phone = farm->GetPhone();
  if (farm->IssetPostalCode()) postalCode = farm->GetPostalCode();
  if (farm->IssetState()) state = farm->GetState();
}

IsoGrower::IsoGrower(Grower const* grower) : id(grower->GetId()), lastName(grower->GetLastName()) {
  if (grower->IssetStreet()) street = grower->GetStreet();
  if (grower->IssetPOBox()) poBox = grower->GetPOBox();
  if (grower->IssetCity()) city = grower->GetCity();
  if (grower->IssetComment()) comment = grower->GetComment();
  if (grower->IssetCountry()) country = grower->GetCountry();
  if (grower->IssetCounty()) county = grower->GetCounty();
  if (grower->IssetCustomerNumber()) customerNumber = grower->GetCustomerNumber();
  if (grower->IssetDisplayName()) displayName = grower->GetDisplayName();
  if (grower->IssetEmail()) email = grower->GetEmail();
  if (grower->IssetFax()) fax = grower->GetFax();
  if (grower->IssetFirstName()) firstName = grower->GetFirstName();
  if (grower->IssetMiddleName()) middleName = grower->GetMiddleName();
  if (grower->IssetMobile()) mobile = grower->GetMobile();
  if (grower->IssetPhone()) phone = grower->GetPhone();
  if (grower->IssetPostalCode()) postalCode = grower->GetPostalCode();
  if (grower->IssetState()) state = grower->GetState();
}
