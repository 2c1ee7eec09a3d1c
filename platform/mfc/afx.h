#pragma once
// Root of the toolkit's classes: run-time class information, text, small value types.

#include "atltypes.h"
#include "cstringt.h"
#include "windows.h"

#include <string>

class CObject;
class CWnd;
class CDC;

// What is known of a class at run time. Classes get one through DECLARE_DYNAMIC and IMPLEMENT_DYNAMIC; a class template
// defines GetThisClass and GetRuntimeClass by itself.
struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;               // bytes
    CObject* (*m_pfnCreateObject)(); // null unless the class is DECLARE_DYNCREATE
    CRuntimeClass* m_pBaseClass;     // null for CObject

    CObject* CreateObject() const; // a new object that the caller owns, or null
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

class CObject
{
public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
    virtual CRuntimeClass* GetRuntimeClass() const;
    static CRuntimeClass* GetThisClass();
    BOOL IsKindOf(const CRuntimeClass* base) const;

protected:
    CObject() = default;
};

CObject* AfxDynamicDownCast(CRuntimeClass* target, CObject* object); // null when the object is of another class

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (dynamic_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass* GetThisClass();                                                                              \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                                                \
    CRuntimeClass* class_name::GetThisClass()                                                                          \
    {                                                                                                                  \
        static CRuntimeClass description{#class_name, static_cast<int>(sizeof(class_name)), create,                    \
                                         RUNTIME_CLASS(base_class_name)};                                              \
        return &description;                                                                                           \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject()                                                                                \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, class_name::CreateObject)
