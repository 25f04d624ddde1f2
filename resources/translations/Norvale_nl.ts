<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>&quot;%1&quot; verwijderen... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Geen browserextensies gevonden</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browserextensies</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Extensies zoeken...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Vernieuwen</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Even geduld...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Browserextensies scannen...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Scannen...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 van %2 extensies</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 extensies in totaal</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Selectie verwijderen (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Selectie verwijderen</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Browser is actief</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>De volgende browsers hebben nog actieve achtergrondprocessen:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Klik op &quot;Geforceerd afsluiten&quot; om alle betrokken processen te beëindigen en door te gaan met verwijderen, of sluit ze zelf en klik op &quot;Opnieuw proberen&quot;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; heeft nog actieve achtergrondprocessen.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Ook na het sluiten van het browservenster kunnen achtergrondprocessen actief blijven. Klik op &quot;Geforceerd afsluiten&quot; of sluit ze zelf en klik op &quot;Opnieuw proberen&quot;.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Geforceerd afsluiten en verwijderen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Kan niet volledig beëindigen: %1&lt;br&gt;Beëindig het handmatig in Taakbeheer en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>Kan %1 niet volledig beëindigen. Beëindig alle %2-processen handmatig in Taakbeheer en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Kan proces niet beëindigen</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Extensie verwijderen</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; verwijderen?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;De extensiebeheerpagina van %2 wordt geopend en de extensie-ID wordt gekopieerd&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Extensie wordt verwijderd...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ &quot;%1&quot; verwijderd</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Automatisch verwijderen mislukt</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Kan &lt;b&gt;%1&lt;/b&gt; niet automatisch verwijderen</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>De extensiebeheerpagina van %1 is geopend.&lt;br&gt;De extensie-ID is naar het klembord gekopieerd:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Klik na het handmatig verwijderen op &lt;b&gt;Vernieuwen&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Selectie verwijderen</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>De &lt;b&gt;%1&lt;/b&gt; geselecteerde extensies verwijderen?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>%1 extensie(s) verwijderen...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Verwijderen voltooid</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; extensie(s) verwijderd.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>De lijst wordt automatisch vernieuwd.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Gedeeltelijk mislukt</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; gelukt, &lt;b&gt;%2&lt;/b&gt; mislukt.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Mislukt (handmatig in de browser verwijderen):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 extensies</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Schijfopruiming</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Overbodige bestanden zoeken en veilig schijfruimte vrijmaken</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Scannen…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Even geduld</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Opnieuw scannen</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Alles selecteren</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Selectie opruimen</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scan voltooid</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Opruimen voltooid, &lt;b&gt;%1&lt;/b&gt; vrijgemaakt</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Alles deselecteren</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; categorieën geselecteerd  ·  ca. &lt;b&gt;%2&lt;/b&gt; vrij te maken</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>%1 categorieën om op te ruimen gevonden, %2 in totaal</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 categorieën geselecteerd  ·  ca. %2 vrij te maken</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Scannen…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Tijdelijke Windows-bestanden</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update-cache</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome-cache</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge-cache</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox-cache</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Systeemlogboekbestanden</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch-cache</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Geheugendumpbestanden</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Prullenbak</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Vorige Windows-installaties</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Schijfopruiming</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Overbodige bestanden opruimen</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Programma&apos;s verwijderen</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Geïnstalleerde programma&apos;s beheren</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows-apps</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>UWP-apps beheren</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browserextensies</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Extensies beheren</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Systeemoverzicht</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● Live</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Systeeminformatie lezen…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Geïnstalleerde updates</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Realtime prestaties</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Snelle acties</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 kernen</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Actief: %1 u %2 min</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Actief: %1 d %2 u</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Geforceerd verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Selectie verwijderen</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Geforceerd verwijderen: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Zoeken naar items om te verwijderen...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Controleer elk item zorgvuldig. Items met een hoog risico zijn standaard niet geselecteerd.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Alles deselecteren</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Niets gevonden om te verwijderen.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Geselecteerde items verwijderen...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Geforceerd verwijderen voltooid</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>De toepassing en bijbehorende bestanden zijn verwijderd.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>Installatielocatie %1 is een systeem- of gebruikersmap en blijft ongemoeid.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Niets gevonden om te verwijderen</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; items gevonden  ·  &lt;b&gt;%2&lt;/b&gt; vrij te maken</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Starten...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Geforceerd verwijderen voltooid  ·  &lt;b&gt;%1&lt;/b&gt; vrijgemaakt</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Gereed ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Installatiemap</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App-gegevens</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Opstarten</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Opstartsnelkoppeling</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Geplande taak</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Hoog risico</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Processen beëindigen...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Installatiemap scannen...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>App-gegevens scannen...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Register scannen...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Opstartitems scannen...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Geplande taken scannen...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Services scannen...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Installatiemap: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>App-gegevens: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Verwijderingsvermelding in register: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Opstarten (register): %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Opstartsnelkoppeling: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Geplande taak: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows-service: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Verwijderen: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Gereed: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Kan de paginakoppelingen niet laden.

Neem contact op met de technische ondersteuning of installeer de software opnieuw.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Kan browser niet openen</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Kan de standaardbrowser niet openen.

Kopieer de koppeling en open deze handmatig:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Configuratiefout</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Over Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Taal gewijzigd</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Taal gewijzigd in: %1
De toepassing wordt nu opnieuw gestart.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Opnieuw starten mislukt</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Start de toepassing handmatig opnieuw.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Restanten opruimen</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Restanten opruimen</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Zoeken naar restbestanden...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Initialiseren...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Geen restbestanden gevonden!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Alles deselecteren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scannen...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; items gevonden  ·  &lt;b&gt;%2&lt;/b&gt; vrij te maken</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Geen restbestanden gevonden</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Selectie opruimen</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Opruimen...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Opruimen... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Opgeruimd — %1 vrijgemaakt</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Gereed ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Veilig</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Controleren</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Verweesde app-gegevens</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Cachebestanden</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Logboekbestanden</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Crashrapporten</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Tijdelijke bestanden</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Functies</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Systeemoverzicht</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Schijfopruiming</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Programma&apos;s verwijderen</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows-apps</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browserextensies</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Over Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Taal</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Help</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Ondersteuning</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Vorige grootte</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Programma&apos;s verwijderen</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Geïnstalleerde programma&apos;s beheren · Meerdere tegelijk verwijderen · Registerrestanten opruimen</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> programma&apos;s</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> ongebruikt</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Geïnstalleerde software zoeken...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Ongebruikt</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Vernieuwen</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Op grootte</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Op datum</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Op naam</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Uitgever</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Installatie­datum</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Klik op Vernieuwen om geïnstalleerde programma&apos;s te scannen.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Geïnstalleerde programma&apos;s scannen...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Registervermeldingen lezen, even geduld...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Restanten opruimen</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Selectie verwijderen</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scannen...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programma&apos;s</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; geselecteerd  ·  &lt;b&gt;%2&lt;/b&gt; vrij te maken</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Verwijderen bevestigen</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>&quot;%1&quot; verwijderen?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Geen verwijderprogramma gevonden</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; heeft geen eigen verwijderprogramma.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Gebruik &lt;b&gt;Geforceerd verwijderen&lt;/b&gt; om de installatiemap, registervermeldingen en bijbehorende bestanden te verwijderen.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Dit kan niet ongedaan worden gemaakt.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Geforceerd verwijderen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Verwijderen: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Verwijderd: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Restanten opruimen →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Verwijderen mislukt: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Verwijderen mislukt</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; kon niet worden verwijderd met het eigen verwijderprogramma.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;Geforceerd verwijderen&lt;/b&gt; zal:&lt;br&gt;• alle actieve processen beëindigen&lt;br&gt;• de installatiemap verwijderen&lt;br&gt;• registervermeldingen verwijderen&lt;br&gt;• opstartitems &amp;amp; services opruimen&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Dit kan niet ongedaan worden gemaakt. Controleer de items zorgvuldig voordat u bevestigt.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Niet gevonden</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Geen installatiegegevens gevonden voor &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Verwijder het programma handmatig.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Selectie verwijderen</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>%1 geselecteerde programma&apos;s verwijderen?
Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Verwijderen mislukt (mogelijk zijn beheerdersrechten vereist)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Door het systeem beveiligde app: de registratie voor de huidige gebruiker is verwijderd, maar systeemonderdelen kunnen na opnieuw opstarten terugkeren.
Voer Norvale uit als administrator om de app volledig te verwijderen.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows-apps</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Apps zoeken...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Vernieuwen</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Uitgever</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Installatie­datum</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>App wordt verwijderd...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Even geduld...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Scannen...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Windows-apps scannen...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Windows-apps scannen... %1 gevonden</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 van %2 apps</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 apps in totaal</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Selectie verwijderen</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Selectie verwijderen (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 apps geselecteerd</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Kan Microsoft Edge niet verwijderen</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge is een Windows-systeemonderdeel en kan niet op deze manier worden verwijderd.

Als u de standaardbrowser wilt wijzigen, gaat u naar
&quot;Instellingen → Apps → Standaard-apps&quot;.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>App verwijderen</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>&quot;%1&quot; verwijderen?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Selectie verwijderen</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>De %1 geselecteerde apps verwijderen?
Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>%1 apps verwijderen...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 apps</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>&quot;%1&quot; verwijderen... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 apps verwijderd, vernieuwen...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Verwijderen mislukt</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Geen enkele app kon worden verwijderd.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Gedeeltelijk mislukt</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; gelukt, &lt;b&gt;%2&lt;/b&gt; mislukt.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Details:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Vooraf geïnstalleerde systeem-apps (zoals Edge en Foto&apos;s) kunnen beveiligd zijn en niet op deze manier worden verwijderd.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
