<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>hot-work area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>formwork workshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>woodworking workshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>electrical and mechanical workshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open shed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>office</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dormitory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>prefab house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crossing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>electrical and mechanical yard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>extinguisher box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>overhead cable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reinforcement yard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>formwork yard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tower crane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>washing pool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waste pool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wood yard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>container house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tea pavilion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>future building</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixing station</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>half-open house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>poster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>total step-down substation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transformer substation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>block yard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>weighbridge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fire road</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>road</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no evaluator knows this rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no evaluator is of type &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ended at #%1, to which no box has a measurable distance; what follows it in the drawing was not judged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1 and at most %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>four</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>five</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>six</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seven</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In plan; a cable that reaches down to the ground is not judged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The nearest box more than 0 and at most {limit} mm away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least {limit} mm wide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least as many pairs of fire roads with meeting outlines as there are fire roads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends of centre lines join within {limit} mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most {limit} m².</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needed above {limit} m² a floor, or from {floors} floors on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{limit} mm high; touching counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>looks at the last object of the drawing only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall ends at most {limit} mm apart meet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 other</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n others</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>end of a list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counts as touching %1 without being measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>touches or overlaps %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lies %1 from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stands %1 from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2; the rule asks for %3</source>
        <comment>element, distances, limits</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no extinguisher box, nor has the site any; the rule asks for one %2 away that does not touch it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 counts as touched by %2 without being measured; the rule asks for one %3 away that does not touch it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is touched by %2; the rule asks for one %3 away that does not touch it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands %2 from the nearest box, %3; the rule asks for one %4 away that does not touch it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a floor of %2; the rule asks for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a room of %2; the rule asks for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2 wide; the rule asks for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no stair at each end; the rule asks for both where a house has %2 or more floors, or more than %3 m² a floor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fire roads of the site form no loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the only one, and the roads of the site form no closed loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 lie on one side of the site: in one wall, or in two that meet at more than a right angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 reaches into the %2 above %3 that the rule asks to keep clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 runs above %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site has no %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>element, what is wrong</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <comment>element, what is wrong, related elements</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 &quot;%3&quot;</source>
        <comment>noun, handle, name</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>noun, handle</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element that the drawing does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>element %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline crosses itself: the edge from corner %1 to %2 crosses that from %3 to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline crosses itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its length is not above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline has no area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its depth is not above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its radius is not above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline has no points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline has only 1 point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outline has only 2 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no outline with an area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its stair code %1 is none of 0 to 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the centre line of a road of the site cannot be joined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it lies on the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no rooms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no neighbour with one door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site has nothing to compare it with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elements of these types are never measured against each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is of another use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it or its door does not open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no extinguisher box has a measurable distance to it, which ends the rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the rule ended at an element before it in the drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object #%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not open</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n further errors, see &quot;firecheck lint-site&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 about the site file, see &quot;firecheck lint-site&quot;</source>
        <comment>doubts</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in the rule file, see &quot;firecheck lint-rules&quot;</source>
        <comment>findings</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time by rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %, %3</source>
        <comment>file, share, rule</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %, about %3 s left, %4</source>
        <comment>file, share, time, rule</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a number from -1e12 to 1e12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected the key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point [x, y, z]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a number that is not negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point [x, y]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point [x, y] or [x, y, z]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point [x, y] or [x, y, bulge]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number or a point [x, y]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object with &quot;low&quot; and &quot;high&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected no other keys than &quot;low&quot; and &quot;high&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected an integer, found a fraction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected an integer from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of %1, or an integer code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; the keys are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected the key &quot;%1&quot; (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; occurs twice in its object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object with more than %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a finite number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected JSON in UTF-8: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected JSON in UTF-8: found a NUL byte, as texts in UTF-16 have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &quot;%2&quot; is never read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not measured and counts as 0 m away: every pair offends against a minimum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The condition &quot;%1&quot; never judges: no distance offends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No distance offends against it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It counts as infinite.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No distance is below it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It counts as 0 m.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no distance, which is a number of metres, 0 or more. %2</source>
        <comment>given, what it means</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only a minimum and a maximum are read; what follows the second &quot;:&quot; is not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under &quot;less&quot; the maximum is not read; it is under &quot;less or more&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every distance offends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A distance of %1 m is more than any site has: limits are in metres.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distances from %1 to %2 are not measured. The rule can never find anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>element types</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No distance is below a minimum of 0 m. The rule can never find anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under this name no open shed counts: which ones do, the rule&apos;s name decides.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without &quot;%1&quot; the rule concerns no element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No element reports &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rule&apos;s name is about %1, not %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no element type identifier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text speaks of %1, but the rule judges by %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Did you mean &quot;%2&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>rule, message</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n findings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Text directly in a rule is not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element &quot;%1&quot; is never read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the first &quot;%1&quot; of a rule is read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rule has no &quot;Type&quot;: no evaluator judges it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No evaluator is of type &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This name belongs to rules of type &quot;%1&quot;, not to those of type &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No evaluator of type &quot;%1&quot; knows this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes nothing for this rule. Fixed limit: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes nothing for this rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a &quot;PropertyType&quot; the name means nothing: any %1 satisfies the rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These bytes are no text in the encoding of the file, which is UTF-8 unless it declares another: texts come out garbled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text between the groups is not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands directly in the document element and is taken for a group: put it into one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comment in a group becomes an empty rule: put it between the groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text in a group becomes an empty rule: put it between the groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A processing instruction in a group becomes an empty rule: put it between the groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rule is filed under the key &quot;%1&quot;, like the one in line %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected at least one rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not judged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a gate that is not in the drawing offends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site as a whole offends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 offends</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n offend</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>none offends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none can offend as the rule is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without an outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with an outline that crosses itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>since a centre line cannot be joined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without rooms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a neighbour that has one door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to compare with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never measured against elements of the other type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of another use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with a door that does not open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to which no box has a measurable distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after the end of the rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>count, why not judged</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to judge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to judge: %1 found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to judge: %1 found, %2</source>
        <comment>count, why</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found, %2</source>
        <comment>count, outcome</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pairs never measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not judged</source>
        <comment>count</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not judged: %2</source>
        <comment>count, why</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>looked for, missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>looked for, present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>outcome, note</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 object</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 violation</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n violations</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>at (%1, %2) m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 accepted</source>
        <comment>count</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 element not judged</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n elements not judged</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n rules left out</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no violations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>violations, rules</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accepted: %1</source>
        <comment>reason</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accepted before, but no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Judged by no rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was judged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>element, why it was not judged</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by %1</source>
        <comment>rule</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by %1 and 1 other rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>by %1 and %n other rules</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>accepted at %1, but worse now: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a rule file, found a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a rule file, found something else that is no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too large, too deeply nested or too many entities for a rule file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a well-formed XML document: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the house is used for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the shed is used for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the house is used for, in the words of the rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle of the mast&apos;s foot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>height of the jibs&apos; underside above the foot; 0 for a crane without mast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from the mast&apos;s axis; 0 for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one end in plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the other end in plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>height of the poster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle of the footprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>along its own x axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>along its own y axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centre of the circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radius of the circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a footprint: &quot;center&quot;, &quot;length&quot; and &quot;depth&quot;, or &quot;circle&quot;, or &quot;polyline&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected &quot;shapeKind&quot; to say which of the footprints counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the waste it takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;none&quot; or a list of points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start of the centre line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end of the centre line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start in plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end in plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>height of the cable&apos;s axis at its start, in metres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a handle other than 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number by which reports name the object; each object has its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>element type identifier, or model kind identifier of a 3-D model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown class of 3-D models &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown class &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, which is a use of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the classes are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a handle of its own, found %1 once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected the key &quot;class&quot; (what the object is)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of a class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a site file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle of the door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from the wall&apos;s start, along it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of doors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start of the axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end of the axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected the handle of a door, found %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a &quot;key&quot; that no other door of the wall has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code %1 has no meaning here; known are %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The door is %1 along a wall of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands %2 from where this wall says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rule knows the identifier &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rule can measure the object: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The object stands %1 from the middle of the site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The object stands in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>object, place in the file</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: %1: %2 [%3]</source>
        <comment>place, message, code</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>doubt: %1: %2 [%3]</source>
        <comment>place, message, code</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 error</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 doubt</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n doubts</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>floors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3 is less than %2 %3, which no such element has.</source>
        <comment>value, bound, unit</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3 is more than %2 %3, which no such element has.</source>
        <comment>value, bound, unit</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm is outside the house, which is %2 mm long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The wall at %1 mm stands less than 500 mm behind the one at %2 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The low corner lies above the high one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rule looks for the use &quot;%1&quot;, and no house has one of %2, which rules look for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than 256 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a pipe that nothing was written to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
