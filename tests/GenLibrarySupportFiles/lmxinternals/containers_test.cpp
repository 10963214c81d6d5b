// The fields of the element classes: who owns what, what a copy shares (nothing), and what stops the process.
#include "GenLibrarySupportFiles/lmxinternals/containers.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"

namespace {

using std::string;

// Short and full spellings name the same field.
static_assert(std::is_same_v<lmx::ct_simple_pod_single<int>,
                             lmx::ct_simple_pod_single<int, int, lmx::ct_non_mixed<int>>>);
static_assert(std::is_same_v<lmx::ct_simple_pod_optional<string>,
                             lmx::ct_simple_pod_optional<string, string, lmx::ct_non_mixed<string>>>);
static_assert(
    std::is_same_v<lmx::ct_simple_pod_multi<string>,
                   lmx::ct_simple_pod_multi<string, string, lmx::ct_non_mixed<string>,
                                            lmx::ct_non_pod_container<string, std::vector<string*>,
                                                                      lmx::ct_happy_ptr_deleter<string>>>>);
static_assert(std::is_same_v<lmx::c_repository<int>, lmx::c_repository<int, lmx::c_rep_ops<int>>>);
static_assert(std::is_polymorphic_v<lmx::c_repository<int>>);

/// A child that counts how many of its kind live.
class Child {
 public:
  explicit Child(int value_in = 0) : value(value_in) { ++alive; }
  Child(Child const& other) : value(other.value) { ++alive; }
  Child& operator=(Child const&) = default;
  ~Child() { --alive; }
  Child* clone() const { return new Child(*this); }

  int value;
  static int alive;
};
int Child::alive = 0;

template <class List>
std::vector<int> values(List const& list) {
  std::vector<int> all;
  for (std::size_t i = 0; i != list.size(); ++i) {
    if constexpr (std::is_same_v<List, lmx::ct_complex_multi<Child>>) {
      all.push_back(list.get(i).value);
    } else {
      all.push_back(list[i].value);
    }
  }
  return all;
}

class Owners : public testing::Test {
 protected:
  void SetUp() override { Child::alive = 0; }
  void TearDown() override { EXPECT_EQ(0, Child::alive) << "every child is freed once"; }
};

// --- Simple values ---------------------------------------------------------------------------------------

template <class Field>
class SimpleField : public testing::Test {};
using SimpleFields = testing::Types<lmx::ct_simple_pod_single<int>, lmx::ct_simple_pod_optional<int>>;
TYPED_TEST_SUITE(SimpleField, SimpleFields, );

TYPED_TEST(SimpleField, StartsUnsetWithTheDefaultValue) {
  auto* const storage = new unsigned char[sizeof(TypeParam)];
  for (std::size_t i = 0; i != sizeof(TypeParam); ++i) storage[i] = 0xA5;
  auto* const field = new (storage) TypeParam;  // a fresh field shows nothing of what stood there before
  EXPECT_FALSE(field->is_set());
  EXPECT_EQ(0, field->get());
  field->~TypeParam();
  delete[] storage;
}

TYPED_TEST(SimpleField, KeepsItsValueWhenTheFlagIsCleared) {
  TypeParam field;
  EXPECT_EQ(lmx::ELMX_OK, field.set(7));
  EXPECT_TRUE(field.is_set());
  EXPECT_EQ(7, field.get());
  field.unset();
  EXPECT_FALSE(field.is_set());
  EXPECT_EQ(7, field.get());
}

TYPED_TEST(SimpleField, IsFilledByReaders) {
  TypeParam field;
  field.mark_value_set();
  EXPECT_TRUE(field.is_set());
  EXPECT_EQ(0, field.get());
  field.ref_value() = 7;
  EXPECT_EQ(7, field.get());
}

TYPED_TEST(SimpleField, IsCopiedWithItsFlag) {
  TypeParam field;
  field.set(7);
  TypeParam copy(field);
  field.set(8);
  EXPECT_TRUE(copy.is_set());
  EXPECT_EQ(7, copy.get());
}

TEST(NonMixedDeathTest, HasNoText) {
  lmx::ct_non_mixed<int> holder;
  lmx::ct_simple_pod_single<int> single;
  lmx::ct_simple_pod_optional<int> optional;
  lmx::ct_simple_pod_multi<string> multi;
  EXPECT_DEATH(holder.ref_text(), "");
  EXPECT_DEATH(single.ref_text(), "");
  EXPECT_DEATH(optional.ref_text(), "");
  EXPECT_DEATH(multi.ref_text(), "");
}

TEST(NonMixed, HoldsAValueThatStartsAtItsDefault) {
  lmx::ct_non_mixed<double> holder;
  EXPECT_EQ(0.0, holder.value());
  holder.ref_value() = 1.5;
  EXPECT_EQ(1.5, holder.value());
}

// Memory as the last owner left it. Not inlined: what a constructor does not write must stay.
[[gnu::noinline]] void soil(unsigned char* memory, std::size_t size) {
  for (std::size_t i = 0; i != size; ++i) const_cast<unsigned char volatile*>(memory)[i] = 0xA5;
}

template <class Field, class Check>
void in_soiled_memory(Check check) {
  alignas(Field) unsigned char memory[sizeof(Field)];
  soil(memory, sizeof memory);
  auto* const field = new (memory) Field;
  check(*field);
  field->~Field();
}

template <class T>
void expect_zero() {
  const auto check = [](auto const& field) {
    EXPECT_FALSE(field.is_set());
    EXPECT_EQ(T(), field.get());
  };
  in_soiled_memory<lmx::ct_simple_pod_single<T>>(check);
  in_soiled_memory<lmx::ct_simple_pod_optional<T>>(check);
}

TEST(Fields, StartAtZeroWhateverTheirMemoryHeld) {
  expect_zero<bool>();
  expect_zero<unsigned char>();
  expect_zero<unsigned short>();
  expect_zero<unsigned int>();
  expect_zero<int>();
  expect_zero<double>();
  expect_zero<string>();
}

TEST(RepeatedField, IsSetWhileItHoldsAnything) {
  lmx::ct_simple_pod_multi<string> field;
  EXPECT_FALSE(field.is_set());
  field.mark_value_set();
  field.ref_value() = "a";
  field.mark_value_set();
  EXPECT_TRUE(field.is_set());
  ASSERT_EQ(2u, field.size());
  EXPECT_EQ("a", field[0]);
  EXPECT_EQ("", field[1]);
  EXPECT_EQ(&field[1], &field.ref_value());
  field.clear();
  EXPECT_FALSE(field.is_set());
}

// --- Owned objects ---------------------------------------------------------------------------------------

TEST_F(Owners, ListTakesPointersAndFreesThem) {
  lmx::ct_non_pod_container<Child> list;
  EXPECT_TRUE(list.empty());
  list.append(new Child(2));
  list.append().value = 4;
  list.insert(0, new Child(1));
  list.insert(2).value = 3;
  EXPECT_EQ((std::vector<int>{1, 2, 3, 4}), values(list));
  EXPECT_EQ(4, list.back().value);
  list.assign(1, new Child(9));
  list.erase(0);
  EXPECT_EQ((std::vector<int>{9, 3, 4}), values(list));
  EXPECT_EQ(3, Child::alive) << "replaced and erased ones are freed at once";
  list.clear();
  EXPECT_EQ(0, Child::alive);
  list.append(new Child(5));
}

TEST_F(Owners, ListKeepsObjectsInPlaceWhileItGrows) {
  lmx::ct_non_pod_container<Child> list;
  Child* const first = &list.append();
  for (int i = 0; i != 1000; ++i) list.append();
  list.insert(0);
  EXPECT_EQ(first, &list[1]);
}

TEST_F(Owners, ListCopiesDeeply) {
  lmx::ct_non_pod_container<Child> list;
  list.append(new Child(1));
  lmx::ct_non_pod_container<Child> copy(list), assigned;
  assigned.append(new Child(7));
  assigned = list;
  list[0].value = 2;
  EXPECT_EQ(std::vector<int>{1}, values(copy));
  EXPECT_EQ(std::vector<int>{1}, values(assigned));
  EXPECT_EQ(3, Child::alive);
  auto const& same = assigned;
  assigned = same;
  EXPECT_EQ(std::vector<int>{1}, values(assigned));
  const lmx::ct_non_pod_container<Child> moved(std::move(copy));
  EXPECT_EQ(std::vector<int>{1}, values(moved));
  EXPECT_EQ(3, Child::alive);
}

TEST_F(Owners, OptionalChildIsCreatedOnDemand) {
  lmx::ct_complex_optional<Child> field;
  EXPECT_FALSE(field.is_set());
  field.get_or_create().value = 5;
  EXPECT_TRUE(field.is_set());
  EXPECT_EQ(&field.get(), &field.get_or_create());
  EXPECT_EQ(5, field.get().value);
  field.assign(new Child(6));
  EXPECT_EQ(6, field.get().value);
  EXPECT_EQ(1, Child::alive);
  field.assign(nullptr);
  EXPECT_FALSE(field.is_set());
  field.get_or_create();
  field.unset();
  EXPECT_FALSE(field.is_set());
}

TEST_F(Owners, OptionalChildIsCloned) {
  lmx::ct_complex_optional<Child> field, empty;
  field.assign(new Child(5));
  lmx::ct_complex_optional<Child> copy(field), assigned;
  assigned = field;
  field.get_or_create().value = 6;
  EXPECT_EQ(5, copy.get().value);
  EXPECT_EQ(5, assigned.get().value);
  EXPECT_EQ(3, Child::alive);
  auto const& same = assigned;
  assigned = same;
  EXPECT_EQ(5, assigned.get().value);
  assigned = empty;
  EXPECT_FALSE(assigned.is_set());
  EXPECT_FALSE(lmx::ct_complex_optional<Child>(empty).is_set());
}

TEST_F(Owners, ChildrenGrowUpToAnIndex) {
  lmx::ct_complex_multi<Child> children;
  children.get_or_append(2).value = 3;
  EXPECT_EQ((std::vector<int>{0, 0, 3}), values(children));
  children.get_or_append(0).value = 1;
  EXPECT_EQ((std::vector<int>{1, 0, 3}), values(children));
  children.assign(4, Child(5));
  EXPECT_EQ((std::vector<int>{1, 0, 3, 0, 5}), values(children));
  children.assign(1, std::make_unique<Child>(2));
  EXPECT_EQ((std::vector<int>{1, 2, 3, 0, 5}), values(children));
}

TEST_F(Owners, ChildrenAreInsertedAndErased) {
  lmx::ct_complex_multi<Child> children;
  children.append().value = 2;
  children.append(std::make_unique<Child>(4));
  children.insert(0).value = 1;
  children.insert(2, std::make_unique<Child>(3));
  children.insert(4).value = 5;
  EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 5}), values(children));
  EXPECT_EQ(5, children.back().value);
  children.erase(0);
  children.erase(3);
  EXPECT_EQ((std::vector<int>{2, 3, 4}), values(children));
  EXPECT_EQ(3, Child::alive);
  children.clear();
  EXPECT_TRUE(children.empty());
  EXPECT_EQ(0, Child::alive);
}

TEST_F(Owners, ChildrenStayInPlaceWhileSiblingsAreAdded) {
  lmx::ct_complex_multi<Child> children;
  Child const* const first = &children.append();
  for (int i = 0; i != 1000; ++i) children.append();
  children.insert(0);
  EXPECT_EQ(first, &children.get(1));
}

TEST_F(Owners, ChildrenAreCloned) {
  lmx::ct_complex_multi<Child> children;
  children.append().value = 1;
  children.append().value = 2;
  lmx::ct_complex_multi<Child> copy(children), assigned;
  assigned.append();
  assigned = children;
  children.get(0).value = 9;
  EXPECT_EQ((std::vector<int>{1, 2}), values(copy));
  EXPECT_EQ((std::vector<int>{1, 2}), values(assigned));
  EXPECT_EQ(6, Child::alive);
  auto const& same = assigned;
  assigned = same;
  EXPECT_EQ((std::vector<int>{1, 2}), values(assigned));
}

// Children that the list makes itself lie in blocks of its own, others where they were made.
TEST_F(Owners, ChildrenComeAndGoInAnyOrder) {
  std::minstd_rand random(7);
  auto const below = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  lmx::ct_complex_multi<Child> children;
  std::vector<int> expected;
  for (int step = 0; step != 20000; ++step) {
    std::size_t const index = below(expected.size() + 1);
    bool const is_there = index != expected.size();
    auto const at = expected.begin() + static_cast<std::ptrdiff_t>(index);
    switch (below(is_there ? 9 : 4)) {
      case 0:
      case 1:
        children.append().value = step;
        expected.push_back(step);
        break;
      case 2:
        children.append(std::make_unique<Child>(step));
        expected.push_back(step);
        break;
      case 3:
        children.insert(index).value = step;
        expected.insert(at, step);
        break;
      case 4:
        children.assign(index, std::make_unique<Child>(step));
        expected[index] = step;
        break;
      case 5:
        children.assign(index, Child(step));
        expected[index] = step;
        break;
      case 6:
      case 7:
        children.erase(index);
        expected.erase(at);
        break;
      default:
        if (below(300) == 0) {
          lmx::ct_complex_multi<Child> moved(std::move(children));
          children.append();
          children = std::move(moved);
        } else if (below(300) == 0) {
          children.clear();
          expected.clear();
        }
    }
    ASSERT_EQ(expected.size(), children.size()) << step;
    ASSERT_EQ(static_cast<int>(expected.size()), Child::alive) << step;
    if (step % 100 == 0) {
      ASSERT_EQ(expected, values(children)) << step;
    }
  }
}

constexpr struct Elsewhere {
} elsewhere;

/// Where a list has made its children.
struct Placed {
  Placed() { places.insert(this); }
  explicit Placed(Elsewhere) {}
  Placed* clone() const { return new Placed(elsewhere); }
  int value = 0;
  static std::set<Placed const*> places;
};
std::set<Placed const*> Placed::places;

TEST(Children, TakeThePlacesOfThoseThatWereRemoved) {
  Placed::places.clear();
  lmx::ct_complex_multi<Placed> children;
  for (int i = 0; i != 10000; ++i) {
    children.append();
    children.erase(0);
  }
  EXPECT_LE(Placed::places.size(), 1u);

  // With others between them, which stay where they are.
  std::vector<Placed const*> kept;
  for (int i = 0; i != 100; ++i) kept.push_back(&children.append());
  for (int i = 0; i != 10000; ++i) {
    children.append();
    children.erase(50);
    kept.erase(kept.begin() + 50);
    kept.push_back(&children.append());
    children.erase(children.size() - 2);
  }
  ASSERT_EQ(kept.size(), children.size());
  for (std::size_t i = 0; i != kept.size(); ++i) ASSERT_EQ(kept[i], &children.get(i)) << i;
  EXPECT_LE(Placed::places.size(), 256u);

  // One that is replaced leaves its place too.
  for (int i = 0; i != 10000; ++i) {
    children.append();
    children.assign(100, std::make_unique<Placed>(elsewhere));
    children.erase(100);
  }
  EXPECT_LE(Placed::places.size(), 256u);
  lmx::ct_complex_multi<Placed> taken(std::move(children));
  children.append();  // NOLINT(bugprone-use-after-move): promised
  taken.clear();
  taken.append();
  EXPECT_EQ(1u, taken.size());
}

/// A child whose making or cloning may fail.
struct Fragile {
  explicit Fragile(int value_in = 0) : child(value_in) {
    if (is_broken) throw std::bad_alloc();
  }
  Fragile* clone() const { return new Fragile(child.value); }
  Child child;
  static bool is_broken;
};
bool Fragile::is_broken = false;

TEST_F(Owners, ChildrenThatCannotBeMadeLeaveTheListAsItIs) {
  for (std::size_t const count : {0u, 1u, 2u, 3u, 7u, 100u}) {
    lmx::ct_complex_multi<Fragile> children;
    for (std::size_t i = 0; i != count; ++i) children.append().child.value = static_cast<int>(i);
    Fragile::is_broken = true;
    EXPECT_THROW(children.append(), std::bad_alloc);
    EXPECT_THROW(children.insert(0), std::bad_alloc);
    if (count != 0) {
      EXPECT_THROW(lmx::ct_complex_multi<Fragile>{children}, std::bad_alloc);
    }
    Fragile::is_broken = false;
    ASSERT_EQ(count, children.size());
    EXPECT_EQ(static_cast<int>(count), Child::alive);
    children.append().child.value = static_cast<int>(count);
    for (std::size_t i = 0; i <= count; ++i) EXPECT_EQ(static_cast<int>(i), children.get(i).child.value);

    // In places that were used before, which stay free when nothing comes of it.
    while (!children.empty()) children.erase(0);
    Fragile::is_broken = true;
    for (int i = 0; i != 3; ++i) EXPECT_THROW(children.append(), std::bad_alloc);
    Fragile::is_broken = false;
    for (std::size_t i = 0; i <= count; ++i) children.append().child.value = static_cast<int>(i);
    for (std::size_t i = 0; i <= count; ++i) EXPECT_EQ(static_cast<int>(i), children.get(i).child.value);
  }
}

TEST(ContainerDeathTest, StopsOnWhatIsNotThere) {
  const lmx::ct_complex_optional<Child> absent;
  EXPECT_DEATH(absent.get(), " p\n");
  lmx::ct_complex_multi<Child> children;
  children.append();
  auto const& constant = children;
  EXPECT_DEATH(constant.get(1), "index_in < m_values.size\\(\\)");
  EXPECT_DEATH(children.get(1), "index_in < m_values.size\\(\\)");
  EXPECT_DEATH(children.erase(1), "index_in < m_values.size\\(\\)");
  EXPECT_DEATH(constant.get(static_cast<std::size_t>(-1)), "index_in < m_values.size\\(\\)");
}

// --- Named values ----------------------------------------------------------------------------------------

TEST(Repository, KeepsTheOrderOfEntryAndTheLastValue) {
  for (const int count : {3, 16, 17, 18, 200}) {  // a few names, and as many as an index is kept for
    SCOPED_TRACE(count);
    lmx::c_repository<int> repository;
    EXPECT_TRUE(repository.empty());
    for (int i = 0; i != count; ++i) repository.set("name" + std::to_string(i), i);
    for (int i = 0; i != count; ++i) repository.set("name" + std::to_string(i), -i);
    ASSERT_EQ(static_cast<std::size_t>(count), repository.size());
    for (int i = 0; i != count; ++i) {
      const string name = "name" + std::to_string(i);
      ASSERT_NE(nullptr, repository.find(name));
      EXPECT_EQ(-i, *repository.find(name));
      EXPECT_EQ(name, repository.entries()[static_cast<std::size_t>(i)].first);
    }
    EXPECT_EQ(nullptr, repository.find("name"));
    EXPECT_EQ(nullptr, repository.find(""));
    repository.clear();
    EXPECT_TRUE(repository.empty());
    EXPECT_EQ(nullptr, repository.find("name0"));
    repository.set("again", 1);
    EXPECT_EQ(1, *repository.find("again"));
  }
}

TEST(Repository, FindsEachNameWhateverTheirNumber) {
  lmx::c_repository<int> repository;
  for (int i = 0; i != 2000; ++i) {
    const string name = "name" + std::to_string(i);
    ASSERT_EQ(nullptr, repository.find(name));
    EXPECT_EQ(i, repository.find_or_add(name, i));
    EXPECT_EQ(i, repository.find_or_add(name, -1)) << "the first value stays";
    ASSERT_EQ(static_cast<std::size_t>(i) + 1, repository.size());
    for (int known = i; known >= 0; known -= 1 + i / 8) {
      int const* const value = repository.find("name" + std::to_string(known));
      ASSERT_NE(nullptr, value) << known << " of " << i;
      ASSERT_EQ(known, *value);
    }
  }
}

TEST(Repository, OwnsItsTexts) {
  lmx::c_repository<char const*> repository;
  string name = "name", value = "value";
  repository.set(name, value.c_str());
  name = "other";
  value = "changed";
  ASSERT_NE(nullptr, repository.find("name"));
  EXPECT_EQ("value", *repository.find("name"));
  EXPECT_EQ(nullptr, repository.find("other"));
}

TEST(Repository, TellsNamesApartByEveryByte) {
  lmx::c_repository<int> repository;
  repository.set("", 1);
  repository.set("a", 2);
  repository.set("A", 3);
  repository.set("a ", 4);
  EXPECT_EQ(1, *repository.find(""));
  EXPECT_EQ(2, *repository.find("a"));
  EXPECT_EQ(3, *repository.find("A"));
  EXPECT_EQ(4, *repository.find("a "));
}

}  // namespace
