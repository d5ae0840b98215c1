// acedGetPoint() and the monitors that follow the cursor, without a frame.
#include "HostFixture.h"

#include "accmd.h"
#include "acedads.h"
#include "acedinpt.h"
#include "adscodes.h"
#include "rxmfcapi.h"

#include <deque>

namespace
{

const double kUntouched = -1;

ads_point thePoint;
int theResult;

void AskForPoint()
{
    theResult = acedGetPoint(nullptr, L"Point: ", thePoint);
}

struct Reply
{
    arxhost::PointReply kind;
    std::wstring typed;
    AcGePoint2d picked;
};

// Gives the replies one after the other, then gives up.
class Answering : public arxhost::IHostUi
{
public:
    arxhost::PointReply GetPoint(const wchar_t* prompt, std::wstring& typed, AcGePoint2d& picked) override
    {
        prompts += prompt;
        if (replies.empty())
        {
            return arxhost::PointReply::GivenUp;
        }
        const Reply reply = replies.front();
        replies.pop_front();
        typed = reply.typed;
        picked = reply.picked;
        return reply.kind;
    }
    CView* CurrentView() override { return view; }

    std::deque<Reply> replies;
    std::wstring prompts;
    CView* view = nullptr;
};

class Monitor : public AcEdInputPointMonitor
{
public:
    Acad::ErrorStatus monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult& /*output*/) override
    {
        ++calls;
        document = input.document();
        point = input.rawPoint();
        picked = input.pickedEntities();
        if (leaves)
        {
            document->inputPointManager()->removePointMonitor(this);
        }
        return Acad::eOk;
    }

    int calls = 0;
    bool leaves = false;
    AcApDocument* document = nullptr;
    AcGePoint3d point;
    AcDbObjectIdArray picked;
};

class InputPoint : public HostTest
{
protected:
    void SetUp() override
    {
        HostTest::SetUp();
        m_document = arxhost::NewDocument();
        arxhost::SetHostUi(&m_ui);
        acedRegCmds->addCommand(L"TEST", L"ASKPOINT", L"ASKPOINT", ACRX_CMD_MODAL, &AskForPoint);
        thePoint[0] = thePoint[1] = thePoint[2] = kUntouched;
        theResult = 0;
    }

    int Run(const wchar_t* line)
    {
        arxhost::ExecuteLine(line);
        return theResult;
    }

    static AcGePoint3d Point() { return AcGePoint3d(thePoint[0], thePoint[1], thePoint[2]); }

    Answering m_ui;
    AcApDocument* m_document = nullptr;
};

} // namespace

TEST_F(InputPoint, PickedPointIsTheAnswer)
{
    m_ui.replies = {{arxhost::PointReply::Picked, L"", AcGePoint2d(3, -4.5)}};
    EXPECT_EQ(RTNORM, Run(L"ASKPOINT"));
    EXPECT_EQ(AcGePoint3d(3, -4.5, 0), Point());
    EXPECT_EQ(L"Point: ", m_ui.prompts);
}

TEST_F(InputPoint, LineOfAnswersIsTakenBeforeTheUserIsAsked)
{
    EXPECT_EQ(RTNORM, Run(L"ASKPOINT 12.5,-3"));
    EXPECT_EQ(AcGePoint3d(12.5, -3, 0), Point());
    EXPECT_EQ(L"", m_ui.prompts);
    EXPECT_NE(std::wstring::npos, printed.find(L"Point: 12.5,-3\n"));
}

TEST_F(InputPoint, OtherTextIsRefusedAndAskedForAgain)
{
    m_ui.replies = {{arxhost::PointReply::Typed, L"here", AcGePoint2d()},
                    {arxhost::PointReply::Typed, L"1,2,3", AcGePoint2d()}};
    EXPECT_EQ(RTNORM, Run(L"ASKPOINT"));
    EXPECT_EQ(AcGePoint3d(1, 2, 3), Point());
    EXPECT_EQ(L"Point: Point: ", m_ui.prompts);
    EXPECT_NE(std::wstring::npos, printed.find(L"点“here”无效"));
}

TEST_F(InputPoint, BadTextOfTheLineIsFollowedByItsNextAnswer)
{
    EXPECT_EQ(RTNORM, Run(L"ASKPOINT x 7,8"));
    EXPECT_EQ(AcGePoint3d(7, 8, 0), Point());
}

TEST_F(InputPoint, EnterAloneIsNoPoint)
{
    m_ui.replies = {{arxhost::PointReply::Typed, L"", AcGePoint2d()}};
    EXPECT_EQ(RTNONE, Run(L"ASKPOINT"));
    EXPECT_EQ(RTNONE, Run(L"ASKPOINT \"\""));
    EXPECT_EQ(kUntouched, thePoint[0]);
}

TEST_F(InputPoint, GivenUpOrNobodyThereIsCancelled)
{
    EXPECT_EQ(RTCAN, Run(L"ASKPOINT"));
    EXPECT_EQ(RTCAN, Run(L"ASKPOINT nonsense")) << "asked again, and given up then";
    arxhost::SetHostUi(nullptr);
    EXPECT_EQ(RTCAN, Run(L"ASKPOINT"));
    EXPECT_EQ(kUntouched, thePoint[0]);
}

TEST_F(InputPoint, CommandsAnswerEachOtherByPoints)
{
    ads_point given = {1.5, 2.5, 4};
    EXPECT_EQ(RTNORM, acedCommand(RTSTR, L"ASKPOINT", RT3DPOINT, given, RTNONE));
    EXPECT_EQ(RTNORM, theResult);
    EXPECT_EQ(AcGePoint3d(1.5, 2.5, 4), Point());
}

TEST_F(InputPoint, PlaceForTheResultIsNeeded)
{
    EXPECT_EQ(RTERROR, acedGetPoint(nullptr, L"Point: ", nullptr));
    EXPECT_EQ(L"", m_ui.prompts);
}

TEST_F(InputPoint, TwoOrThreeFiniteNumbersAreAPointAndNothingElse)
{
    for (const wchar_t* text : {L",", L"1", L"1,", L",2", L"1,2,", L"1,2,3,4", L"a,b", L"1;2", L"1, 2", L"inf,0",
                                L"nan,0", L"1e999,0", L"1e,2", L"--1,2"})
    {
        const std::string name(text, text + wcslen(text));
        EXPECT_EQ(RTCAN, Run((std::wstring(L"ASKPOINT \"") + text + L"\"").c_str())) << name;
        EXPECT_EQ(kUntouched, thePoint[0]) << name;
    }
    EXPECT_EQ(RTNORM, Run(L"ASKPOINT +1e2,-.5"));
    EXPECT_EQ(AcGePoint3d(100, -0.5, 0), Point());
}

TEST_F(InputPoint, MonitorsHearWhereTheCursorIs)
{
    Monitor monitor;
    ASSERT_EQ(Acad::eOk, m_document->inputPointManager()->addPointMonitor(&monitor));
    arxhost::TellCursor(m_document, AcGePoint2d(5, 6));
    EXPECT_EQ(1, monitor.calls);
    EXPECT_EQ(m_document, monitor.document);
    EXPECT_EQ(AcGePoint3d(5, 6, 0), monitor.point);
    arxhost::TellCursor(arxhost::NewDocument(), AcGePoint2d(7, 8));
    EXPECT_EQ(1, monitor.calls) << "another document";
    EXPECT_EQ(Acad::eOk, m_document->inputPointManager()->removePointMonitor(&monitor));
    arxhost::TellCursor(m_document, AcGePoint2d(9, 9));
    EXPECT_EQ(1, monitor.calls);
}

TEST_F(InputPoint, MonitorsHearWhatTheCursorIsOver)
{
    Monitor monitor;
    m_document->inputPointManager()->addPointMonitor(&monitor);
    const AcDbObjectId entity = m_document->database()->blockTableId(); // any object does
    arxhost::TellCursor(m_document, AcGePoint2d(5, 6), {entity});
    ASSERT_EQ(1, monitor.picked.length());
    EXPECT_EQ(entity, monitor.picked[0]);
    arxhost::TellCursor(m_document, AcGePoint2d(5, 6));
    EXPECT_TRUE(monitor.picked.isEmpty());
}

TEST_F(InputPoint, PickIsForcedAsLongAsSomeoneWantsIt)
{
    AcEdInputPointManager* manager = m_document->inputPointManager();
    EXPECT_FALSE(arxhost::IsPickForced(m_document));
    EXPECT_EQ(Acad::eInvalidInput, manager->turnOffForcedPick());
    EXPECT_EQ(Acad::eOk, manager->turnOnForcedPick());
    EXPECT_EQ(Acad::eOk, manager->turnOnForcedPick());
    EXPECT_EQ(Acad::eOk, manager->turnOffForcedPick());
    EXPECT_TRUE(arxhost::IsPickForced(m_document));
    EXPECT_FALSE(arxhost::IsPickForced(arxhost::NewDocument())) << "another document";
    EXPECT_EQ(Acad::eOk, manager->turnOffForcedPick());
    EXPECT_FALSE(arxhost::IsPickForced(m_document));
    EXPECT_FALSE(arxhost::IsPickForced(nullptr));
}

TEST_F(InputPoint, MonitorIsRegisteredOnce)
{
    Monitor monitor;
    AcEdInputPointManager* manager = m_document->inputPointManager();
    EXPECT_EQ(Acad::eInvalidInput, manager->addPointMonitor(nullptr));
    EXPECT_EQ(Acad::eInvalidInput, manager->removePointMonitor(nullptr));
    EXPECT_EQ(Acad::eKeyNotFound, manager->removePointMonitor(&monitor));
    EXPECT_EQ(Acad::eOk, manager->addPointMonitor(&monitor));
    EXPECT_EQ(Acad::eDuplicateKey, manager->addPointMonitor(&monitor));
    arxhost::TellCursor(m_document, AcGePoint2d());
    EXPECT_EQ(1, monitor.calls);
}

TEST_F(InputPoint, MonitorMayLeaveWhileItIsCalled)
{
    Monitor leaving;
    Monitor staying;
    leaving.leaves = true;
    m_document->inputPointManager()->addPointMonitor(&leaving);
    m_document->inputPointManager()->addPointMonitor(&staying);
    arxhost::TellCursor(m_document, AcGePoint2d());
    arxhost::TellCursor(m_document, AcGePoint2d());
    EXPECT_EQ(1, leaving.calls);
    EXPECT_EQ(2, staying.calls);
}

TEST_F(InputPoint, ClosedDocumentTellsNobody)
{
    Monitor monitor;
    m_document->inputPointManager()->addPointMonitor(&monitor);
    ASSERT_TRUE(arxhost::CloseDocument(m_document));
    arxhost::TellCursor(m_document, AcGePoint2d());
    EXPECT_EQ(0, monitor.calls);
}

TEST_F(InputPoint, ViewIsTheProgramsOrNone)
{
    EXPECT_EQ(nullptr, acedGetAcadDwgView());
    // Only handed through, never used.
    m_ui.view = reinterpret_cast<CView*>(&m_ui);
    EXPECT_EQ(m_ui.view, acedGetAcadDwgView());
    arxhost::SetHostUi(nullptr);
    EXPECT_EQ(nullptr, acedGetAcadDwgView());
}
