#pragma once

#include <QLatin1String>

/// The words of the requests. Some of them have no request that uses them.
namespace TFUc {

namespace Path {
constexpr QLatin1String Subject("/bas/subject/data");
constexpr QLatin1String DataObject("/bas/ds/data");
constexpr QLatin1String Index("/bas/index/data");
} // namespace Path

namespace Key {
constexpr QLatin1String Auth("auth");
constexpr QLatin1String UserId("userId");
constexpr QLatin1String ProdId("prodId");
constexpr QLatin1String ObjId("objId");
constexpr QLatin1String ParentNodeCode("P_NODE_CODE");
constexpr QLatin1String SecurityTypeCode("SECU_TYP_CODE");
constexpr QLatin1String ObjVwId("obj_vw_id");
constexpr QLatin1String Flag("flag");
constexpr QLatin1String Page("page");
constexpr QLatin1String Size("size");
constexpr QLatin1String Filter("filter");
constexpr QLatin1String FilterParams("filterParams");
constexpr QLatin1String ObjName("objName");

constexpr QLatin1String Type("type");
constexpr QLatin1String PageNo("pageno");
constexpr QLatin1String PageSize("pagesize");
constexpr QLatin1String Includes("includes");
constexpr QLatin1String IdxId("idxId");
constexpr QLatin1String Identifier("identifier");
constexpr QLatin1String IdxInfos("idxInfos");
constexpr QLatin1String ConstantTypeCode("CONSTANT_TYPE_CODE");
constexpr QLatin1String Categories("categories");
constexpr QLatin1String Children("children");
constexpr QLatin1String Code("code");
constexpr QLatin1String Name("name");
constexpr QLatin1String CatCode("CAT_CODE");
constexpr QLatin1String CatCodeAll("CAT_CODE_ALL");
constexpr QLatin1String CatName("CAT_NAME");
constexpr QLatin1String ParentCatCode("P_CAT_CODE");
constexpr QLatin1String HasIndex("HAV_IDX");
constexpr QLatin1String Indexes("indexs");
constexpr QLatin1String Root("ROOT");
constexpr QLatin1String SequenceNumber("SN");
constexpr QLatin1String UnclassifiedCategory("unclassifiedCategory");
} // namespace Key

namespace Operator {
constexpr QLatin1String In("in");
constexpr QLatin1String Equal("==");
/// The service knows it; no filter may use it.
constexpr QLatin1String Or("||");
/// Operators of a filter; the last one also joins the conditions.
constexpr QLatin1String Join("&&");
constexpr QLatin1String Accepted[] = {QLatin1String(">"),
                                      QLatin1String(">="),
                                      QLatin1String("<"),
                                      QLatin1String("<="),
                                      Equal,
                                      QLatin1String("!="),
                                      QLatin1String("like"),
                                      In,
                                      QLatin1String("nin"),
                                      Join};
} // namespace Operator

} // namespace TFUc
