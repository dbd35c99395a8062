#include "assoc/gui/AssoOpenGLScene.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QMetaMethod>
#include <QtTest>

// The signals and slots each plot scene declares itself, in their order in its meta-object:
// connections by index and anything that lists them rely on that order. The scenes' common
// base declares none, so the scenes' own methods start right after QGraphicsScene's.
namespace
{

QStringList ownMethods(const QMetaObject& meta)
{
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return signatures;
}

} // namespace

class SceneSlotOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void associativeLawScene();
    void sineScene();
};

void SceneSlotOrderTest::associativeLawScene()
{
    const QMetaObject& meta = AssoOpenGLScene::staticMetaObject;
    QCOMPARE(meta.methodOffset(), QGraphicsScene::staticMetaObject.methodCount());
    const QStringList expected = {"plotClicked(QPointF)",
                                  "updateMaxItera()",
                                  "updateX()",
                                  "updateR()",
                                  "updateYmin()",
                                  "updateYmax()",
                                  "needFunc0(bool)",
                                  "needFunc1(bool)",
                                  "needFunc2(bool)",
                                  "needFunc3(bool)",
                                  "needFunc4(bool)",
                                  "allUnchoose()",
                                  "allchoose()",
                                  "needErrorComparison(bool)",
                                  "setBaseFunc1(bool)",
                                  "setBaseFunc2(bool)",
                                  "setBaseFunc3(bool)",
                                  "setBaseFunc4(bool)",
                                  "setBaseFunc5(bool)",
                                  "setStartpoint(int)",
                                  "setEndpoint(int)",
                                  "setStepsize(int)",
                                  "calculate()",
                                  "setNeedXAxis(bool)",
                                  "setNeedYAxis(bool)",
                                  "Yapply()",
                                  "resetXY()",
                                  "need2ShowXIndices(bool)",
                                  "need2ShowYIndices(bool)",
                                  "need2ShowLabels(bool)",
                                  "accelerate()",
                                  "decelerate()",
                                  "speedAdjust()",
                                  "pause()",
                                  "runningMan()",
                                  "setTimeStartpoint(int)"};
    QCOMPARE(ownMethods(meta), expected);
}

void SceneSlotOrderTest::sineScene()
{
    const QMetaObject& meta = SineOpenGLScene::staticMetaObject;
    QCOMPARE(meta.methodOffset(), QGraphicsScene::staticMetaObject.methodCount());
    const QStringList expected = {"plotClicked(QPointF)",
                                  "updateMaxItera()",
                                  "updateX()",
                                  "updateYmin()",
                                  "updateYmax()",
                                  "needFunc1(bool)",
                                  "needFunc2(bool)",
                                  "needFunc3(bool)",
                                  "needFunc4(bool)",
                                  "needFunc5(bool)",
                                  "needFunc6(bool)",
                                  "needFunc7(bool)",
                                  "needFunc8(bool)",
                                  "needFunc9(bool)",
                                  "needFunc10(bool)",
                                  "needFunc11(bool)",
                                  "needFunc12(bool)",
                                  "needBaseSin(bool)",
                                  "needErrorComparison(bool)",
                                  "allUnchoose()",
                                  "allchoose()",
                                  "needFinalError(bool)",
                                  "setStartpoint(int)",
                                  "setEndpoint(int)",
                                  "setStepsize(int)",
                                  "setLowerRange(int)",
                                  "setUpperRange(int)",
                                  "setRangeStep(int)",
                                  "setShowBoundary(bool)",
                                  "setShowValues(bool)",
                                  "calculate()",
                                  "setNeedXAxis(bool)",
                                  "setNeedYAxis(bool)",
                                  "Yapply()",
                                  "resetXY()",
                                  "need2ShowXIndices(bool)",
                                  "need2ShowYIndices(bool)",
                                  "need2ShowLabels(bool)",
                                  "accelerate()",
                                  "decelerate()",
                                  "speedAdjust()",
                                  "pause()",
                                  "runningMan()",
                                  "setTimeStartpoint(int)"};
    QCOMPARE(ownMethods(meta), expected);
}

QTEST_MAIN(SceneSlotOrderTest)
#include "SceneSlotOrderTest.moc"
