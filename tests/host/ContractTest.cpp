// What libraries that were built apart rely on: numbers, the order of virtual operations, the order of fields.

#include "host/orv/IApplication.h"
#include "host/orv/IHint.h"
#include "host/orv/IOutlookPane.h"
#include "host/orv/IPlugin.h"
#include "host/orv/IStatusUpdator.h"
#include "host/orv/IView.h"
#include "host/orv/OmniInfo.h"
#include "host/orv/SCApplication.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCPmi.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/orvui/IResourceManager.h"
#include "host/orvui/IWOutlookPane.h"
#include "host/orvweb/UserInfo.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace
{

/// Slot of a virtual operation in its class's table, as the platform's C++ ABI lays it out (Itanium C++ ABI, 2.3). A
/// virtual destructor takes the first two.
template <class Operation>
std::ptrdiff_t slotOf(Operation operation)
{
    static_assert(sizeof operation == 2 * sizeof(std::ptrdiff_t));
    std::array<std::ptrdiff_t, 2> parts{};
    std::memcpy(parts.data(), &operation, sizeof operation);
#if defined(__aarch64__) || defined(__arm__)
    EXPECT_EQ(parts[1] & 1, 1) << "not virtual";
    return parts[0] / static_cast<std::ptrdiff_t>(sizeof(void*));
#else
    EXPECT_EQ(parts[0] & 1, 1) << "not virtual";
    return (parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
#endif
}

/// True where each field stands behind the one before.
template <class... Fields>
bool standInOrder(Fields const&... fields)
{
    std::vector<std::uintptr_t> places{reinterpret_cast<std::uintptr_t>(&fields)...};
    for (std::size_t i = 1; i < places.size(); ++i) {
        if (places[i - 1] >= places[i]) {
            return false;
        }
    }
    return true;
}

TEST(RecordKeys, AreTheAgreedNumbers)
{
    EXPECT_EQ(orvsg::SCSceneRT::key, 1);
    EXPECT_EQ(orvgl::SCRenderer::key, 2);
    EXPECT_EQ(orvsg::SCPmi::key, 3);
    EXPECT_EQ(orvsg::SCInfo::key, 8);
    EXPECT_EQ(orvsg::SCSceneTopo::key, 12);
    EXPECT_EQ(orvsg::SCSceneRes::key, 13);
    EXPECT_EQ(orv::SCApplication::key, 19);
    static_assert(std::is_same_v<decltype(orvsg::SCBom::BOM), short const>);
    for (int const taken : {1, 2, 3, 8, 12, 13, 19}) {
        EXPECT_NE(orvsg::SCBom::BOM, taken);
    }
}

TEST(HintCodes, AreTheAgreedNumbers)
{
    using namespace orv::HintCode;
    EXPECT_EQ(documentActivated, 1);
    EXPECT_EQ(documentOpened, 3);
    EXPECT_EQ(documentClosed, 5);
    EXPECT_EQ(documentChanged, 7);
    EXPECT_EQ(documentReplaced, 8);
    EXPECT_EQ(viewChanged, 9);
    EXPECT_EQ(selectionChanged, 10);
    EXPECT_EQ(visibilityChanged, 14);
    EXPECT_EQ(appearanceChanged, 15);
    EXPECT_EQ(documentReloaded, 18);
    EXPECT_EQ(sceneChanged, 19);
    EXPECT_EQ(viewRestored, 20);
    EXPECT_EQ(documentImported, 25);
    EXPECT_EQ(documentSaved, 26);
    EXPECT_EQ(commentAdded, 37);
    EXPECT_EQ(unitsChanged, 38);
    EXPECT_EQ(commentDeleted, 39);
    EXPECT_EQ(feedReloaded, 40);
    EXPECT_EQ(signedIn, 41);
    EXPECT_EQ(signedOut, 42);
}

TEST(Slots, OfAPlugin)
{
    static_assert(std::has_virtual_destructor_v<orv::IPlugin>);
    EXPECT_EQ(slotOf(&orv::IPlugin::getName), 2);
    EXPECT_EQ(slotOf(&orv::IPlugin::getType), 3);
    EXPECT_EQ(slotOf(&orv::IPlugin::id), 4);
    EXPECT_EQ(slotOf(&orv::IPlugin::loadPreferences), 5);
    EXPECT_EQ(slotOf(&orv::IPlugin::savePreferences), 6);
    EXPECT_EQ(slotOf(&orv::IPlugin::setParent), 7);
    EXPECT_EQ(static_cast<int>(orv::IPlugin::guiPlugin), 2);
}

TEST(Slots, OfAPluginWithWindowsFollowThoseOfAPlugin)
{
    using orvui::IGUIPlugin;
    static_assert(std::is_base_of_v<orv::IPlugin, IGUIPlugin> && std::is_base_of_v<orv::IView, IGUIPlugin>);
    EXPECT_EQ(slotOf(&IGUIPlugin::AddToRibbon), 8);
    EXPECT_EQ(slotOf(&IGUIPlugin::AddToOutlookBar), 9);
    EXPECT_EQ(slotOf(&IGUIPlugin::AddToPropertySheet), 10);
    EXPECT_EQ(slotOf(&IGUIPlugin::OnCommand), 11);
    EXPECT_EQ(slotOf(&IGUIPlugin::OnUpdateCommand), 12);
    EXPECT_EQ(slotOf(&IGUIPlugin::AddToContextMenu), 13);
    EXPECT_EQ(slotOf(&IGUIPlugin::OnTabActivate), 14);
    EXPECT_EQ(slotOf(&IGUIPlugin::getCommandName), 15);
}

TEST(Slots, OfHintsAndViews)
{
    static_assert(std::has_virtual_destructor_v<orv::IHint> && std::has_virtual_destructor_v<orv::IView> &&
                  std::has_virtual_destructor_v<orv::IOutlookPane>);
    EXPECT_EQ(slotOf(&orv::IHint::getCode), 2);
    EXPECT_EQ(slotOf(&orv::IHint::getDocument), 3);
    EXPECT_EQ(slotOf(&orv::IView::OnUpdate), 2);
    EXPECT_EQ(slotOf(&orv::IOutlookPane::OnUpdate), 2);
    EXPECT_EQ(slotOf(&orv::IOutlookPane::OnActivateChange), 3);
    EXPECT_EQ(slotOf(&orv::IDocument::getSchema), 2);
}

/// A pane with one more operation, which takes the next slot.
class LongerPane : public orvui::IWOutlookPane<CWnd>
{
public:
    virtual void oneMore() {}
};

TEST(Slots, OfAPaneEndWithTheCreatingOperation)
{
    using Pane = orvui::IWOutlookPane<CWnd>;
    BOOL (Pane::*const create)(RECT const&, CWnd*, UINT) = &Pane::Create;
    EXPECT_EQ(slotOf(&LongerPane::oneMore), slotOf(create) + 1);
}

TEST(Slots, OfTheMainWindowsServices)
{
    EXPECT_EQ(slotOf(&orv::IApplication::saveFile), 2);
    EXPECT_EQ(slotOf(&orv::IApplication::showStatus), 3);
    EXPECT_EQ(slotOf(&orv::IApplication::getViewNotifier), 4);
    EXPECT_EQ(slotOf(&orv::IApplication::getStatusManager), 5);
    EXPECT_EQ(slotOf(&orv::IStatusManager::setProgress), 2);
    EXPECT_EQ(slotOf(&orv::IStatusManager::showProgress), 3);
    EXPECT_EQ(slotOf(&orv::IViewNotifier::notify), 2);
    EXPECT_EQ(slotOf(&orvui::IResourceManager::getCommandId), 2);
    EXPECT_EQ(slotOf(&orvui::IResourceManager::addWindow), 3);
}

TEST(Slots, OfTheAnswersChannelBeginWithoutADestructor)
{
    static_assert(!std::has_virtual_destructor_v<orv::IStatusUpdator>);
    EXPECT_EQ(slotOf(&orv::IStatusUpdator::updateResponse), 0);
    EXPECT_EQ(slotOf(&orv::IStatusUpdator::updateProgress), 1);
}

TEST(Fields, StandInTheAgreedOrder)
{
    static_assert(std::has_virtual_destructor_v<orvweb::UserInfo>);
    orvweb::UserInfo const user;
    EXPECT_TRUE(standInOrder(user.userid, user.username, user.name));

    orvsg::SCInfo const info;
    static_assert(sizeof info.pushState == 4 && sizeof info.documentKind == 4);
    EXPECT_TRUE(standInOrder(info.pushState, info.documentKind));

    orvsgutils::PIXELS const sizes{1, 2, 3, 4};
    static_assert(sizeof sizes == 4 * sizeof(int));
    EXPECT_EQ(sizes.smallWidth, 3);
    EXPECT_EQ(sizes.smallHeight, 4);

    orvsg::SCSceneRT const runtime;
    EXPECT_TRUE(standInOrder(runtime.visibility, runtime.transparentNodes, runtime.coloredNodes));
    orvsg::SCSceneTopo const topology;
    EXPECT_TRUE(standInOrder(topology.nodes, topology.transformOfNode));
    orvsg::SCSceneRes const resources;
    EXPECT_TRUE(standInOrder(resources.boxes, resources.transforms, resources.initialTransforms));
    orvsg::Transform const placement;
    EXPECT_TRUE(standInOrder(placement.matrix, placement.isSet));
    orv::SCApplication const application;
    EXPECT_TRUE(standInOrder(application.application, application.supportText));
    orvgl::SCRenderer const renderer;
    EXPECT_TRUE(standInOrder(renderer.camera, renderer.settings));
    orv::OmniInfo const request;
    EXPECT_TRUE(standInOrder(request.file, request.tokens));
}

} // namespace
