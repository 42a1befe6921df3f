// The names under which panels and controls reach a data source: which there are, in which order, and what
// each of them is.

#include "datasource/PropertyRegistration.h"
#include "host/data_binding/DataSource.h"
#include "tests/datasource/support/HostedTest.h"

namespace
{

using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

/// One bound name. Records that do not apply are those of nothing.
struct BoundName
{
    const wchar_t* name;
    RuntimeType value;   ///< Of a property.
    RuntimeType getter;  ///< Of a property.
    RuntimeType setter;  ///< Of a property that can be written.
    RuntimeType command; ///< Of a command.
};

template <class T>
BoundName ReadOnly(const wchar_t* name)
{
    return {name, runtime_type<const T>(), runtime_type<T()>(), {}, {}};
}

template <class T>
BoundName ReadWrite(const wchar_t* name)
{
    return {name, runtime_type<T>(), runtime_type<T()>(), runtime_type<void(const T&)>(), {}};
}

BoundName Command(const wchar_t* name)
{
    return {name, {}, {}, {}, runtime_type<void()>()};
}

const std::vector<BoundName>& TheTable()
{
    static const std::vector<BoundName> table = {
        ReadWrite<OvxStringT>(L"ActiveIdentifier"),
        ReadOnly<int>(L"RevertToParentEnable"),
        Command(L"OnRevertToParent"),
        ReadOnly<int>(L"BreakColorResourceEnable"),
        Command(L"OnBreakColorResource"),
        ReadOnly<int>(L"ApplyToParentEnable"),
        Command(L"OnApplyToParent"),
        ReadOnly<int>(L"CreateStyleFromEnable"),
        ReadOnly<int>(L"IsObjectStyle"),
        ReadOnly<int>(L"IsStyle"),
        ReadOnly<int>(L"IsStyleOrDefault"),
        Command(L"OnCreateStyleFrom"),
        ReadOnly<int>(L"EditStyleEnable"),
        Command(L"OnEditStyle"),
        ReadWrite<Any>(L"PropertyIcon"),
        ReadWrite<Any>(L"PropertyTooltip"),
        ReadOnly<OvxStringT>(L"SectionTitle"),
        ReadOnly<WXmlNode>(L"StyleResourceList"),
        ReadWrite<unsigned int>(L"ApplyStyleResource"),
        ReadOnly<OvxStringT>(L"RevertToMenuString"),
        ReadOnly<OvxStringT>(L"ApplyToMenuString"),
        ReadOnly<OvxStringT>(L"EditStyleMenuString"),
        ReadOnly<WXmlNode>(L"NewStyleList"),
        ReadOnly<int>(L"IsObjectProperties"),
        ReadWrite<WXmlNode>(L"CurrentListStyleItem"),
        Command(L"OnBaseStylePropertiesDatasourceOk"),
        ReadOnly<int>(L"BaseStylePropertiesDatasourceOkEnabled"),
        ReadOnly<WCmnUI_Guid>(L"PropertyPanelStateIdentifier"),
        ReadOnly<int>(L"EnableStyleEditing"),
        ReadOnly<WCmnUI_List>(L"PresetList"),
        ReadWrite<WCmnUI_ListItem>(L"CurrentPreset"),
        ReadOnly<int>(L"AddPresetEnabled"),
        Command(L"OnAddPreset"),
        ReadOnly<int>(L"DeletePresetEnabled"),
        Command(L"OnDeletePreset"),
    };
    return table;
}

void PrintTo(const BoundName& row, std::ostream* out)
{
    *out << Describe(OvxStringT(row.name));
}

/// Has no delegate, or one of that type.
void ExpectDelegate(const RecordingPanel& panel, const OvxStringT& name, const RuntimeType& type)
{
    const DynamicDelegate* delegate = panel.GetDynamicDelegate(name);

    EXPECT_EQ(delegate == nullptr, type.IsEmpty()) << Describe(name);
    if (delegate == nullptr)
        return;
    EXPECT_EQ(delegate->type, type) << Describe(name);
    EXPECT_FALSE(delegate->callback.IsEmpty()) << Describe(name);
}

class BoundNames : public HostedTest
{
};

TEST_F(BoundNames, StandInTheirOrder)
{
    std::vector<OvxStringT> expected;
    for (const BoundName& row : TheTable())
        expected.emplace_back(row.name);

    EXPECT_EQ(panel.GetNames(), expected);
    EXPECT_EQ(expected.size(), 35U);
}

TEST_F(BoundNames, AreWritableForSixOnly)
{
    std::vector<OvxStringT> writable;
    for (const OvxStringT& name : panel.GetNames())
    {
        if (panel.IsWritableProperty(name))
            writable.push_back(name);
    }

    EXPECT_THAT(writable, ElementsAre(L"ActiveIdentifier", L"PropertyIcon", L"PropertyTooltip",
                                      L"ApplyStyleResource", L"CurrentListStyleItem", L"CurrentPreset"));
}

TEST_F(BoundNames, OfADerivedClassFollowThoseOfItsBase)
{
    class Derived final : public BaseStylePropertiesDatasource, public DataSource<Derived, true>
    {
    public:
        void FillDataSourceMap()
        {
            RegisterProperty<int>(*this, L"FillType", {this, &Derived::GetFillType});
            RegisterCommand(*this, L"OnFill", {this, &Derived::OnFill});
        }

        int GetFillType() { return 3; }

        void OnFill() {}
    };

    Derived derived;

    derived.FinishConstruction();

    const std::vector<OvxStringT> names = derived.GetNames();
    ASSERT_EQ(names.size(), 37U);
    EXPECT_EQ(names.front(), L"ActiveIdentifier");
    EXPECT_EQ(names[34], L"OnDeletePreset");
    EXPECT_EQ(names[35], L"FillType");
    EXPECT_EQ(names[36], L"OnFill");
}

TEST_F(BoundNames, OfRevertAndApplyToParentAnswerAlike)
{
    Styles::Style& base = styles.WithColor("base", 1);
    Styles::Style& overriding = styles.WithColor("overriding", 2, &base);
    Styles::Style& inheriting = styles.WithFill("inheriting", &base);
    const std::vector<std::vector<Styles::Style*>> selections = {
        {}, {nullptr}, {&base}, {&overriding}, {&inheriting}, {&overriding, &inheriting}};

    for (const auto& selection : selections)
    {
        for (const wchar_t* identifier : {L"", L"color", L"style", L"type,color"})
        {
            Target(panel, selection);
            panel.SetActiveIdentifier(identifier);
            EXPECT_EQ(panel.Read<int>(L"RevertToParentEnable"), panel.Read<int>(L"ApplyToParentEnable"))
                << log.NamesOfStyles(selection) << " " << Describe(OvxStringT(identifier));
        }
    }
}

TEST_F(BoundNames, OfTheActiveIdentifierReachIt)
{
    panel.Write<OvxStringT>(L"ActiveIdentifier", L"gradient.start");

    EXPECT_EQ(panel.GetActiveIdentifier(), L"gradient.start");
    EXPECT_EQ(panel.Read<OvxStringT>(L"ActiveIdentifier"), L"gradient.start");
}

TEST_F(BoundNames, MayAllBeReadWithoutAHost)
{
    app.source = nullptr;
    app.stylesApp = nullptr;

    for (const BoundName& row : TheTable())
    {
        if (!row.getter.IsEmpty())
        {
            EXPECT_NO_THROW(static_cast<void>(panel.ReadAny(row.name))) << Describe(OvxStringT(row.name));
        }
    }
}

TEST_F(BoundNames, MayAllBeReadWhateverTheTargets)
{
    Styles::Style& base = styles.WithColor("base", 1);
    Target(panel, {nullptr, &styles.WithColor("box", 2, &base), &styles.Whole("bare")});

    for (const BoundName& row : TheTable())
    {
        if (!row.getter.IsEmpty())
        {
            EXPECT_NO_THROW(static_cast<void>(panel.ReadAny(row.name))) << Describe(OvxStringT(row.name));
        }
    }
}

TEST_F(BoundNames, OfPredicatesAndEnablesReadAsZeroOrOne)
{
    Styles::Style& base = styles.WithColor("base", 1);
    NameInSheet(L"Base", base);
    Target(panel, {&base});

    for (const BoundName& row : TheTable())
    {
        if (row.value == runtime_type<const int>())
        {
            EXPECT_THAT(panel.Read<int>(row.name), testing::AnyOf(0, 1)) << Describe(OvxStringT(row.name));
        }
    }
}

class BoundNameRow : public HostedTest, public testing::WithParamInterface<BoundName>
{
};

TEST_P(BoundNameRow, HasTheTypeRecordOfItsKind)
{
    EXPECT_EQ(panel.GetDynamicType(GetParam().name), GetParam().value);
    EXPECT_EQ(panel.IsWritableProperty(GetParam().name), !GetParam().setter.IsEmpty());
    EXPECT_EQ(panel.HasProperty(GetParam().name), !GetParam().getter.IsEmpty());
}

TEST_P(BoundNameRow, HasTheDelegatesOfItsKindAndNoOthers)
{
    const OvxStringT name = GetParam().name;

    ExpectDelegate(panel, name, GetParam().command);
    ExpectDelegate(panel, L"get_" + name, GetParam().getter);
    ExpectDelegate(panel, L"put_" + name, GetParam().setter);
}

INSTANTIATE_TEST_SUITE_P(Table, BoundNameRow, testing::ValuesIn(TheTable()),
                         [](const auto& row) { return Describe(OvxStringT(row.param.name)); });

// Rows of one's own

/// An object with a number under a bound name.
class NumberHolder final : public IReflectable
{
public:
    int Get() { return number; }

    void Set(const int& newNumber) { number = newNumber; }

    int number = 3;
};

TEST(PropertyRegistration, WithoutASetterMakesAReadOnlyProperty)
{
    NumberHolder holder;

    RegisterProperty<int>(holder, L"Number", {&holder, &NumberHolder::Get});

    EXPECT_EQ(holder.Read<int>(L"Number"), 3);
    EXPECT_EQ(holder.GetDynamicType(L"Number"), runtime_type<const int>());
    EXPECT_EQ(holder.GetDynamicDelegate(L"put_Number"), nullptr);
}

TEST(PropertyRegistration, WithASetterMakesAPropertyToBeWritten)
{
    NumberHolder holder;
    RegisterProperty<int>(holder, L"Number", {&holder, &NumberHolder::Get}, {&holder, &NumberHolder::Set});

    holder.Write<int>(L"Number", 8);

    EXPECT_EQ(holder.number, 8);
    EXPECT_EQ(holder.GetDynamicType(L"Number"), runtime_type<int>());
}

} // namespace
