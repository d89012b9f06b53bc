#include "base/WcharArrayToQString.h"
#include "base/rooted_file_name.h"
#include "cad/UdApDocManager.h"
#include "elements/NUX3dsObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXYardOBJObject.h"

#include <gtest/gtest.h>

TEST(Casts, FindEveryViewOfAnObject) {
    EXPECT_EQ(NUXElementObject::Cast(nullptr), nullptr);
    UdDbDocument document;
    NUXYardOBJObject& yard = document.append(std::make_unique<NUXYardOBJObject>(NUXYardOBJParams()), 7);
    yard.attachView(std::make_unique<NUX3dsObject>(L"KIND", NUX3dsParams()));
    const NUX3dsObject* model = NUX3dsObject::Cast(&yard);
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(NUX3dsBaseObject::Cast(&yard), model);
    EXPECT_EQ(NUXYardOBJObject::Cast(model), &yard);
    EXPECT_EQ(NUX3dsObject::Cast(model), model);
    EXPECT_EQ(model->Handle().GetID(), 7);
}

TEST(Document, OpensObjectsByHandle) {
    UdDbDocument document;
    document.append(std::make_unique<UdDbPlainObject>(), 2);
    UdDbObject& shy = document.append(std::make_unique<UdDbPlainObject>(), 1);
    const UdDbObject& numbered = document.append(std::make_unique<UdDbPlainObject>());
    shy.setRefusesToOpen(true);
    EXPECT_EQ(numbered.Handle().GetID(), 3);
    EXPECT_EQ(document.GetItem(3, UdDb::kForRead), &numbered);
    EXPECT_EQ(document.GetItem(1, UdDb::kForRead), nullptr);
    EXPECT_EQ(document.GetItem(9, UdDb::kForRead), nullptr);
    EXPECT_THROW(document.append(std::make_unique<UdDbPlainObject>(), 2), std::invalid_argument);

    UdDbObject* opened = nullptr;
    EXPECT_EQ(UdDbOpenUdDbObject(opened, UdDbObjectId(&shy), UdDb::kForRead, false), Udad::eNotOpen);
    EXPECT_EQ(UdDbOpenUdDbObject(opened, UdDbObjectId(), UdDb::kForRead, false), Udad::eNullId);
    EXPECT_EQ(opened, nullptr);
    EXPECT_EQ(UdDbObjectId(&shy).Handle().GetID(), 1);
}

TEST(Extents, AreLeftAloneWhereThereAreNone) {
    hrx::CVec3<double> low{1.0, 2.0, 3.0};
    hrx::CVec3<double> high;
    EXPECT_EQ(UdDbPlainObject().GetGeomExtents(low, high), Udad::eNoExtents);
    EXPECT_EQ(low, hrx::CVec3<double>(1.0, 2.0, 3.0));
    EXPECT_EQ(NUXServiceCableObject(NUXServiceCableParams()).GetGeomExtents(low, high), Udad::eOk);
}

TEST(RootedNames, LieBelowTheDriveRoot) {
    setDriveRoot("/data");
    EXPECT_EQ(resolveRootedFileName("\\a\\b.xml"), "/data/a/b.xml");
    EXPECT_EQ(resolveRootedFileName("C:\\a.xml"), "C:\\a.xml");
    mapRootedFileName("\\a\\b.xml", "/other/c.xml");
    EXPECT_EQ(resolveRootedFileName("\\a\\b.xml"), "/other/c.xml");
    EXPECT_EQ(resolveRootedFileName("\\a.xml"), "/data/a.xml");
}
