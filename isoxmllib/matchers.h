// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// Matchers of the patterns, for texts that are plain ASCII. Private to the library.
#pragma once

#include "isoxmllib/rules.h"

namespace binding {

/// ((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e]))){7}(([0-9]|[A-F]|[a-f])([0-9]|[A-F]|[a-f]))*
extern text_matcher const matcher_0;
/// ((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*
extern text_matcher const matcher_1;
/// ((BSN|CCT|CCG|CLD|CTP|CPC|CTR|DVC|FRM|GGP|GPN|OTQ|PFD|PDT|PGP|PLN|TSK|VPN|WKR)(|-)([0-9])+)|(([0-9A-Z]){1,10}\.([0-9A-Z.]){1,10})
extern text_matcher const matcher_2;
/// (BSN|BSN-)([0-9])+
extern text_matcher const matcher_3;
/// (BSN|CCG|CCT|CLD|CPC|CTP|CTR|DVC|FRM|OTQ|PDT|PFD|PGP|TSK|VPN|WKR)[0-9][0-9][0-9][0-9][0-9]
extern text_matcher const matcher_4;
/// (CCG|CCG-)([0-9])+
extern text_matcher const matcher_5;
/// (CCL|CCL-)([0-9])+
extern text_matcher const matcher_6;
/// (CCT|CCT-)([0-9])+
extern text_matcher const matcher_7;
/// (CLD|CLD-)([0-9])+
extern text_matcher const matcher_8;
/// (CPC|CPC-)([0-9])+
extern text_matcher const matcher_9;
/// (CTP|CTP-)([0-9])+
extern text_matcher const matcher_10;
/// (CTR|CTR-)([0-9])+
extern text_matcher const matcher_11;
/// (CVT|CVT-)([0-9])+
extern text_matcher const matcher_12;
/// (DET|DET-)([0-9])+
extern text_matcher const matcher_13;
/// (DVC|DVC-)([0-9])+
extern text_matcher const matcher_14;
/// (FRM|FRM-)([0-9])+
extern text_matcher const matcher_15;
/// (F|f){2}((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e])))*
extern text_matcher const matcher_16;
/// (GGP|GGP-)([0-9])+
extern text_matcher const matcher_17;
/// (GPN|GPN-)([0-9])+
extern text_matcher const matcher_18;
/// (LGP|LGP-)([0-9])+
extern text_matcher const matcher_19;
/// (LSG|LSG-)([0-9])+
extern text_matcher const matcher_20;
/// (OTQ|OTQ-)([0-9])+
extern text_matcher const matcher_21;
/// (PDT|PDT-)([0-9])+
extern text_matcher const matcher_22;
/// (PFD|PFD-)([0-9])+
extern text_matcher const matcher_23;
/// (PGP|PGP-)([0-9])+
extern text_matcher const matcher_24;
/// (PLN|PLN-)([0-9])+
extern text_matcher const matcher_25;
/// (PNT|PNT-)([0-9])+
extern text_matcher const matcher_26;
/// (TSK|TSK-)([0-9])+
extern text_matcher const matcher_27;
/// (VPN|VPN-)([0-9])+
extern text_matcher const matcher_28;
/// (WKR|WKR-)([0-9])+
extern text_matcher const matcher_29;
/// ([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}
extern text_matcher const matcher_30;
/// GRD[0-9][0-9][0-9][0-9][0-9]
extern text_matcher const matcher_31;
/// PNT([0-9]){5}
extern text_matcher const matcher_32;
/// TLG[0-9][0-9][0-9][0-9][0-9]
extern text_matcher const matcher_33;
/// [a-fA-F0-9]{8}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{12}
extern text_matcher const matcher_34;
/// boolean|string|datetime|integer|decimal|list
extern text_matcher const matcher_35;

inline constexpr text_matcher const* matchers[] = {&matcher_0, &matcher_1, &matcher_2, &matcher_3, &matcher_4, &matcher_5, &matcher_6, &matcher_7, &matcher_8, &matcher_9, &matcher_10, &matcher_11, &matcher_12, &matcher_13, &matcher_14, &matcher_15, &matcher_16, &matcher_17, &matcher_18, &matcher_19, &matcher_20, &matcher_21, &matcher_22, &matcher_23, &matcher_24, &matcher_25, &matcher_26, &matcher_27, &matcher_28, &matcher_29, &matcher_30, &matcher_31, &matcher_32, &matcher_33, &matcher_34, &matcher_35};

}  // namespace binding
