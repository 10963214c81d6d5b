// Classes of a host that knows nothing of the library, under names which the library has too.
#pragma once

/// Uses the host's own classes as a host does, through a base and virtual calls.
/// The result is false if any of them came out as another's.
bool host_uses_its_own_classes();

/// How often a constructor, destructor or other operation of a host class has run since the start.
int calls_into_host_classes();
