#include "winpackagecatalogue.h"

#include <windows.h>

#include <inspectable.h>
#include <objbase.h>
#include <roapi.h>
#include <shlwapi.h>
#include <winstring.h>

#include <utility>

namespace platform {

namespace {

// The package interfaces, declared slot by slot. Slots that are never called keep their place
// with a parameterless placeholder; only the order matters for them.
using RtBool = unsigned char; // the runtime's boolean is one byte, not a BOOL

struct AbiPackageVersion {
    UINT16 major;
    UINT16 minor;
    UINT16 build;
    UINT16 revision;
};

struct IPackageIdAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Name(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Version(AbiPackageVersion* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Architecture(INT32* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ResourceId(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Publisher(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PublisherId(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FullName(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FamilyName(HSTRING* value) = 0;
};

struct IStorageItemAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE renameAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE renameAsyncWithOption() = 0;
    virtual HRESULT STDMETHODCALLTYPE deleteAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE deleteAsyncWithOption() = 0;
    virtual HRESULT STDMETHODCALLTYPE getBasicPropertiesAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Name(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Path(HSTRING* value) = 0;
};

struct IPackageAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Id(IPackageIdAbi** value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_InstalledLocation(IInspectable** value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsFramework(RtBool* value) = 0;
};

struct IPackage2Abi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_DisplayName(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PublisherDisplayName(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Description(HSTRING* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Logo(IInspectable** value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsResourcePackage(RtBool* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsBundle(RtBool* value) = 0;
};

struct IPackage4Abi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_SignatureKind(INT32* value) = 0;
};

struct IPackageIteratorAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Current(IPackageAbi** value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_HasCurrent(RtBool* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE MoveNext(RtBool* value) = 0;
};

struct IPackageIterableAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE First(IPackageIteratorAbi** value) = 0;
};

struct IPackageManagerAbi : public IInspectable {
    virtual HRESULT STDMETHODCALLTYPE addPackageAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE updatePackageAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE removePackageAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE stagePackageAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE registerPackageAsync() = 0;
    virtual HRESULT STDMETHODCALLTYPE findPackages() = 0;
    virtual HRESULT STDMETHODCALLTYPE FindPackagesByUserSecurityId(HSTRING userSecurityId, IPackageIterableAbi** value)
        = 0;
};

constexpr GUID IID_PackageManager = { 0x9a7d4b65, 0x5e8f, 0x4fc7, { 0xa2, 0xe5, 0x7f, 0x69, 0x25, 0xcb, 0x8b, 0x53 } };
constexpr GUID IID_PackageIterable = { 0x69ad6aa7, 0x0c49, 0x5f27, { 0xa5, 0xeb, 0xef, 0x4d, 0x59, 0x46, 0x7b, 0x6d } };
constexpr GUID IID_Package2 = { 0xa6612fb6, 0x7688, 0x4ace, { 0x95, 0xfb, 0x35, 0x95, 0x38, 0xe7, 0xaa, 0x01 } };
constexpr GUID IID_Package4 = { 0x65aed1ae, 0xb95b, 0x450c, { 0x88, 0x2b, 0x62, 0x55, 0x18, 0x7f, 0x39, 0x7e } };
constexpr GUID IID_StorageItem = { 0x4207a996, 0xca2f, 0x42f7, { 0xbd, 0xe8, 0x8b, 0x10, 0x45, 0x7a, 0x7f, 0x30 } };

constexpr DWORD IndirectStringChars = 512; // the loader's output buffer

// Owns one reference to a COM object.
template <typename T> class ComRef {
public:
    ComRef() = default;
    ~ComRef() { reset(); }
    ComRef(const ComRef&) = delete;
    ComRef& operator=(const ComRef&) = delete;

    T* get() const { return m_ptr; }
    T* operator->() const { return m_ptr; }
    T** put()
    {
        reset();
        return &m_ptr;
    }
    void reset()
    {
        if (m_ptr)
            std::exchange(m_ptr, nullptr)->Release();
    }
    template <typename U> HRESULT queryInto(const GUID& iid, ComRef<U>& out) const
    {
        if (!m_ptr)
            return E_POINTER;
        return m_ptr->QueryInterface(iid, reinterpret_cast<void**>(out.put()));
    }

private:
    T* m_ptr = nullptr;
};

// Owns one HSTRING.
class HString {
public:
    HString() = default;
    explicit HString(const wchar_t* text)
    {
        if (FAILED(::WindowsCreateString(text, UINT32(::wcslen(text)), &m_value)))
            m_value = nullptr;
    }
    ~HString() { ::WindowsDeleteString(m_value); }
    HString(const HString&) = delete;
    HString& operator=(const HString&) = delete;

    HSTRING get() const { return m_value; }
    HSTRING* put()
    {
        ::WindowsDeleteString(std::exchange(m_value, nullptr));
        return &m_value;
    }
    std::wstring text() const
    {
        UINT32 length = 0;
        const wchar_t* raw = ::WindowsGetStringRawBuffer(m_value, &length);
        return raw ? std::wstring(raw, length) : std::wstring();
    }

private:
    HSTRING m_value = nullptr;
};

// Keeps a multithreaded apartment open for the walk, and closes only what it opened.
class Apartment {
public:
    Apartment()
        : m_result(::CoInitializeEx(nullptr, COINIT_MULTITHREADED))
    {
    }
    ~Apartment()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    HRESULT result() const { return m_result; }

private:
    HRESULT m_result;
};

// Turns the first failing call into the walk's status; later calls are skipped.
class Calls {
public:
    bool check(HRESULT hr, const char* call)
    {
        if (!m_status.ok)
            return false;
        if (FAILED(hr)) {
            m_status.ok = false;
            m_status.error = std::uint32_t(hr);
            m_status.failedCall = call;
        }
        return m_status.ok;
    }
    CatalogueStatus status() const { return m_status; }

private:
    CatalogueStatus m_status;
};

std::wstring forwardSlashes(std::wstring path)
{
    for (wchar_t& c : path) {
        if (c == L'\\')
            c = L'/';
    }
    return path;
}

// The first round: identity name and the flags the caller filters on.
bool readKind(Calls& calls, IPackageAbi* package, PackageRecord& record, ComRef<IPackageIdAbi>& id,
    ComRef<IPackage2Abi>& package2)
{
    HString name;
    RtBool framework = 0;
    RtBool resource = 0;
    RtBool bundle = 0;
    INT32 signature = 0;
    ComRef<IPackage4Abi> package4;
    // A success code with no object is as broken as a failure code, and must not be dereferenced.
    if (!calls.check(package->get_Id(id.put()), "get_Id") || !calls.check(id.get() ? S_OK : E_POINTER, "get_Id")
        || !calls.check(id->get_Name(name.put()), "get_Name")
        || !calls.check(package->get_IsFramework(&framework), "get_IsFramework")
        || !calls.check(package->QueryInterface(IID_Package2, reinterpret_cast<void**>(package2.put())), "IPackage2")
        || !calls.check(package2->get_IsResourcePackage(&resource), "get_IsResourcePackage")
        || !calls.check(package2->get_IsBundle(&bundle), "get_IsBundle")
        || !calls.check(package->QueryInterface(IID_Package4, reinterpret_cast<void**>(package4.put())), "IPackage4")
        || !calls.check(package4->get_SignatureKind(&signature), "get_SignatureKind"))
        return false;
    record.name = name.text();
    record.isFramework = framework != 0;
    record.isResourcePackage = resource != 0;
    record.isBundle = bundle != 0;
    record.signature = PackageSignature(signature);
    return true;
}

// The second round, for wanted packages only.
bool readDetails(Calls& calls, IPackageAbi* package, IPackageIdAbi* id, IPackage2Abi* package2, PackageRecord& record)
{
    HString fullName, familyName, publisherId, path, displayName, publisher;
    AbiPackageVersion version {};
    ComRef<IInspectable> folder;
    ComRef<IStorageItemAbi> item;
    if (!calls.check(id->get_FullName(fullName.put()), "get_FullName")
        || !calls.check(id->get_FamilyName(familyName.put()), "get_FamilyName")
        || !calls.check(id->get_PublisherId(publisherId.put()), "get_PublisherId")
        || !calls.check(id->get_Version(&version), "get_Version")
        || !calls.check(package->get_InstalledLocation(folder.put()), "get_InstalledLocation")
        // A package without a folder has no location: the record keeps an empty path.
        || (folder.get() && !calls.check(folder.queryInto(IID_StorageItem, item), "IStorageItem"))
        || (item.get() && !calls.check(item->get_Path(path.put()), "get_Path"))
        || !calls.check(package2->get_DisplayName(displayName.put()), "get_DisplayName")
        || !calls.check(package2->get_PublisherDisplayName(publisher.put()), "get_PublisherDisplayName"))
        return false;
    record.fullName = fullName.text();
    record.familyName = familyName.text();
    record.publisherId = publisherId.text();
    record.version = { version.major, version.minor, version.build, version.revision };
    record.installLocation = forwardSlashes(path.text());
    record.displayName = displayName.text();
    record.publisherDisplayName = publisher.text();
    return true;
}

} // namespace

CatalogueStatus WinPackageCatalogue::forEachPackage(const Filter& wanted, const Visitor& visit)
{
    Calls calls;
    const Apartment apartment;
    if (!calls.check(apartment.result(), "CoInitializeEx"))
        return calls.status();

    const HString className(L"Windows.Management.Deployment.PackageManager");
    ComRef<IInspectable> instance;
    ComRef<IPackageManagerAbi> manager;
    ComRef<IPackageIterableAbi> packages;
    ComRef<IPackageIteratorAbi> it;
    const HString currentUser(L""); // an empty security id means the calling user
    RtBool hasCurrent = 0;
    if (!calls.check(::RoActivateInstance(className.get(), instance.put()), "activate")
        || !calls.check(instance.queryInto(IID_PackageManager, manager), "IPackageManager")
        || !calls.check(
            manager->FindPackagesByUserSecurityId(currentUser.get(), packages.put()), "FindPackagesByUserSecurityId")
        || !calls.check(packages.get() ? S_OK : E_POINTER, "FindPackagesByUserSecurityId")
        || !calls.check(packages->First(it.put()), "First") || !calls.check(it.get() ? S_OK : E_POINTER, "First")
        || !calls.check(it->get_HasCurrent(&hasCurrent), "get_HasCurrent"))
        return calls.status();

    while (hasCurrent) {
        ComRef<IPackageAbi> package;
        ComRef<IPackageIdAbi> id;
        ComRef<IPackage2Abi> package2;
        PackageRecord record;
        if (!calls.check(it->get_Current(package.put()), "get_Current")
            || !calls.check(package.get() ? S_OK : E_POINTER, "get_Current")
            || !readKind(calls, package.get(), record, id, package2))
            break;
        if (wanted(record)) {
            if (!readDetails(calls, package.get(), id.get(), package2.get(), record))
                break;
            visit(record);
        }
        if (!calls.check(it->MoveNext(&hasCurrent), "MoveNext"))
            break;
    }
    return calls.status();
}

std::optional<std::wstring> WinPackageCatalogue::loadIndirectString(const std::wstring& source)
{
    wchar_t buffer[IndirectStringChars] = {};
    if (FAILED(::SHLoadIndirectString(source.c_str(), buffer, IndirectStringChars, nullptr)))
        return std::nullopt;
    buffer[IndirectStringChars - 1] = L'\0';
    return std::wstring(buffer);
}

} // namespace platform
