// What a set prescribes: its treatment zones' set values, and what is needed to show them to people.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "transfer/IsoXmlParser.h"

/// Elements by their identifiers; of those that share one, the first.
template <class Element>
using ById = std::map<std::string, Element const*>;

template <class Element>
ById<Element> by_id(std::vector<Element*> const& elements) {
  ById<Element> found;
  for (Element const* element : elements) found.emplace(element->GetId(), element);
  return found;
}

/// May be null.
template <class Element>
Element const* find(ById<Element> const& elements, std::string const& id) {
  const auto element = elements.find(id);
  return element == elements.end() ? nullptr : element->second;
}

/// The task's treatment zones, in document order.
std::vector<TreatmentZone const*> zones_of(Task const& task);
std::vector<Polygon const*> polygons_of(TreatmentZone const& zone);
/// All set values of the zone, in document order, each before those that are nested in it.
std::vector<ProcessDataVariable const*> variables_of(TreatmentZone const& zone);

/// The value as its presentation shows it, (value + offset) * scale.
double shown_value(ProcessDataVariable const& variable, ValuePresentation const& presentation);
