// Field tables: a settings class describes its members once, in member
// order, and everything that walks the members in that order comes from the
// description: the defaults and a reset, the all-at-once copies behind
// GetAll/SetAll, and the data exchange of the page that edits them.
//
//   static constexpr auto Fields()
//   {
//       using F = kal::FieldsOf<CAnovaData>;
//       return std::tuple{
//           F::Source(&CAnovaData::m_SourceList, CAnovaDlgIds::IDC_SOURCE_LIST),
//           F::List(&CAnovaData::m_DependentList, CAnovaDlgIds::IDC_DEPENDENT_LIST),
//           F::Value(&CAnovaData::m_MissingValCheck, CAnovaDlgIds::IDC_MISSING_VALUES, &GetDefaultMissingValCheck),
//           F::Value(&CAnovaData::m_PostHocTestCheck, 0, &GetDefaultPostHocTestCheck), // no control on the page
//           ...};
//   }
//
// Each field names its member, the control that shows it (0: none) and where
// its default comes from: a GetDefault<Control>() that returns the value or
// fills it, or nothing (lists start empty). Edits may carry the range that
// the page accepts, and may be optional (left empty for their default). The archive order is each class's own and stays
// in its Serialize (see SerializeValues).
#pragma once

#include "framework/GUIArray.h"
#include "framework/GUIData.h"
#include "platform/Archive.h"

#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

namespace kal {

template <class T>
struct FieldDefault {
    T (*make)() = nullptr;
    void (*fill)(T&) = nullptr;

    void AssignTo(T& value) const
    {
        if (make)
            value = make();
        else if (fill)
            fill(value);
        else
            value = T{};
    }
};

enum FieldFlags : unsigned {
    kFieldPlain = 0,
    // The source list of a page: it always lists the data sheet's variables,
    // so a page's reset keeps it.
    kFieldSource = 1,
    // A file edit naming a file to read (the default names a file to write).
    kFieldOpenFile = 2,
    // An edited number the user may leave empty: an empty edit gives the
    // holder its default back (state 1), and a holder at its default shows
    // as an empty edit. For values whose default means "none given".
    kFieldOptional = 4,
    // An edited number the user may empty: an empty edit holds no number
    // (NaN) and shows empty again; every number, the default included,
    // shows as it is. For bounds where 0 is a value and "none" is another.
    kFieldBlank = 8,
};

template <class Owner, class T>
struct Field {
    using Type = T;

    T Owner::*member = nullptr;
    UINT control = 0;
    FieldDefault<T> initial{};
    unsigned flags = kFieldPlain;
    // Accepted values of an edited number: [min, max]; message 0 accepts all.
    double min = 0;
    double max = 0;
    UINT rangeMessage = 0;
    // A text that may not be empty while this check box is checked.
    UINT requiredBy = 0;

    // The page refuses values outside [lo, hi] with `message`.
    constexpr Field Range(double lo, double hi, UINT message = kMsgOutOfRange) const
    {
        Field f = *this;
        f.min = lo;
        f.max = hi;
        f.rangeMessage = message;
        return f;
    }
    constexpr Field OpenFile() const
    {
        Field f = *this;
        f.flags |= kFieldOpenFile;
        return f;
    }
    // The text is needed while the check box `check` is checked (a save
    // file while saving is asked for).
    constexpr Field RequiredBy(UINT check) const
    {
        Field f = *this;
        f.requiredBy = check;
        return f;
    }
    // The page accepts an empty edit for this number (see kFieldOptional).
    constexpr Field Optional() const
    {
        Field f = *this;
        f.flags |= kFieldOptional;
        return f;
    }
    // The page lets the user empty this number (see kFieldBlank).
    constexpr Field Blank() const
    {
        Field f = *this;
        f.flags |= kFieldBlank;
        return f;
    }

    static constexpr UINT kMsgOutOfRange = 2012;
};

// The factories a settings class describes its fields with.
template <class Owner>
struct FieldsOf {
    template <class T>
    static constexpr Field<Owner, T> Value(T Owner::*member, UINT control, T (*make)())
    {
        return {member, control, {make, nullptr}};
    }
    template <class T>
    static constexpr Field<Owner, T> Value(T Owner::*member, UINT control, void (*fill)(T&))
    {
        return {member, control, {nullptr, fill}};
    }
    // A list that starts empty.
    template <class T>
    static constexpr Field<Owner, T> List(T Owner::*member, UINT control = 0)
    {
        return {member, control, {}};
    }
    template <class T>
    static constexpr Field<Owner, T> Source(T Owner::*member, UINT control)
    {
        return {member, control, {}, kFieldSource};
    }
    // A page of a tab settings object: default-constructed.
    template <class T>
    static constexpr Field<Owner, T> Page(T Owner::*member)
    {
        return {member, 0, {}};
    }
};

// Calls fn with every field descriptor of Owner, in member order.
template <class Owner, class Fn>
constexpr void ForEachField(Fn&& fn)
{
    std::apply([&](const auto&... field) { (fn(field), ...); }, Owner::Fields());
}

// Puts every field back to its default; a page's reset keeps its source lists.
template <class Owner>
void ResetFields(Owner& object, bool keepSources = false)
{
    ForEachField<Owner>([&](const auto& field) {
        if (!(keepSources && (field.flags & kFieldSource)))
            field.initial.AssignTo(object.*field.member);
    });
}

namespace detail {

template <class T>
void CopyUnlessSame(const T& from, T& to)
{
    if (&from != &to)
        to = from;
}

template <class Owner, std::size_t... I, class... Out>
void CopyOut(const Owner& object, std::index_sequence<I...>, Out&... out)
{
    constexpr auto fields = Owner::Fields();
    (CopyUnlessSame(object.*std::get<I>(fields).member, out), ...);
}

template <class Owner, std::size_t... I, class... In>
void CopyIn(Owner& object, std::index_sequence<I...>, const In&... in)
{
    constexpr auto fields = Owner::Fields();
    (CopyUnlessSame(in, object.*std::get<I>(fields).member), ...);
}

template <class Table, class... Args, std::size_t... I>
constexpr bool SameTypes(std::index_sequence<I...>)
{
    return (std::is_same_v<typename std::tuple_element_t<I, Table>::Type, std::remove_cvref_t<Args>> && ...);
}

template <class Owner, class... Args>
constexpr bool MatchesFields()
{
    using Table = decltype(Owner::Fields());
    if constexpr (std::tuple_size_v<Table> != sizeof...(Args))
        return false;
    else
        return SameTypes<Table, Args...>(std::index_sequence_for<Args...>{});
}

} // namespace detail

// GetAll: every field copied out, in member order; an argument that is the
// member itself is left alone. Returns 1.
template <class Owner, class... Out>
int CopyFieldsOut(const Owner& object, Out&... out)
{
    static_assert(detail::MatchesFields<Owner, Out...>(), "GetAll takes the fields in member order");
    detail::CopyOut(object, std::index_sequence_for<Out...>{}, out...);
    return 1;
}

// SetAll: every field copied in, in member order. Returns 1.
template <class Owner, class... In>
int CopyFieldsIn(Owner& object, const In&... in)
{
    static_assert(detail::MatchesFields<Owner, In...>(), "SetAll takes the fields in member order");
    detail::CopyIn(object, std::index_sequence_for<In...>{}, in...);
    return 1;
}

// Calls fn with references to every field of `object`, in member order: the
// argument list of the class's own GetAll or SetAll.
template <class Owner, class Fn>
decltype(auto) WithFields(Owner& object, Fn&& fn)
{
    return std::apply([&](const auto&... field) -> decltype(auto) { return fn((object.*field.member)...); },
                      Owner::Fields());
}

// Stores or loads plain members (ints, texts) with the archive's operators
// and holders (lists, CGUIData) through their own Serialize, in the order
// given: a class's archive order in one line.
inline void SerializeValue(CArchive& ar, int& value)
{
    if (ar.IsStoring())
        ar << value;
    else
        ar >> value;
}
inline void SerializeValue(CArchive& ar, CString& value)
{
    if (ar.IsStoring())
        ar << value;
    else
        ar >> value;
}
template <class T>
concept SerializesItself = requires(T& t, CArchive& ar)
{
    t.Serialize(ar);
};

template <SerializesItself T>
void SerializeValue(CArchive& ar, T& holder)
{
    holder.Serialize(ar);
}

template <class... T>
void SerializeValues(CArchive& ar, T&... values)
{
    (SerializeValue(ar, values), ...);
}

} // namespace kal
